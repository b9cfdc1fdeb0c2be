#include "data/base_table.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

using platform::ColumnKind;

namespace data {

namespace {

bool isCounter(SQLite::Database& database, const QString& table, const QString& column) {
    int autoIncrement = 0;
    sqlite3_table_column_metadata(database.getHandle(), "main", table.toUtf8().constData(), column.toUtf8().constData(),
                                  nullptr, nullptr, nullptr, nullptr, &autoIncrement);
    return autoIncrement != 0;
}

std::optional<QString> spelling(SQLite::Database& database, const QString& table) {
    SQLite::Statement row(database, "SELECT name FROM sqlite_schema WHERE type = 'table' AND name = ? COLLATE NOCASE");
    row.bind(1, table.toStdString());
    return row.executeStep() ? std::optional(QString::fromUtf8(row.getColumn(0).getText())) : std::nullopt;
}

TableColumn columnOf(SQLite::Database& database, const QString& table, const SQLite::Statement& row) {
    TableColumn column;
    const QString declaration = QString::fromUtf8(row.getColumn(1).getText());
    column.name = QString::fromUtf8(row.getColumn(0).getText());
    column.type = declaredType(declaration);
    column.defaultExpression = QString::fromUtf8(row.getColumn(2).getText());
    if (isCounter(database, table, column.name)) column.type = {ColumnKind::Counter, 0, 0};
    column.isRowId = row.getColumn(3).getInt() == 1 && declaration.compare(u"INTEGER", Qt::CaseInsensitive) == 0;
    return column;
}

}  // namespace

int BaseTable::indexOf(const QString& column) const {
    for (size_t i = 0; i < columns.size(); ++i)
        if (columns[i].name.compare(column, Qt::CaseInsensitive) == 0) return static_cast<int>(i);
    return -1;
}

std::optional<BaseTable> baseTable(SQLite::Database& database, const QString& name) {
    const auto spelled = spelling(database, name);
    if (!spelled) return std::nullopt;
    BaseTable table{*spelled, {}};
    SQLite::Statement row(database, "SELECT name, type, dflt_value, pk FROM pragma_table_info(?) ORDER BY cid");
    row.bind(1, table.name.toStdString());
    while (row.executeStep())
        table.columns.push_back(columnOf(database, table.name, row));
    return table;
}

}  // namespace data
