#include "data/fetched_rows.h"

#include <algorithm>

#include "data/open_file.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

/// SQLiteCpp takes a column without a declaration for an error. An expression, such as the count that every move looks
/// up, isn't asked for one: a caught error costs more than the rest of its reading.
std::optional<ColumnType> typeOf(const SQLite::Statement& statement, int column) {
    if (!statement.getColumnOriginName(column)) return std::nullopt;
    try {
        return declaredType(QString::fromUtf8(statement.getColumnDeclaredType(column)));
    } catch (const SQLite::Exception&) {
        return std::nullopt;
    }
}

}  // namespace

std::vector<ShownColumn> shownColumns(const SQLite::Statement& statement) {
    std::vector<ShownColumn> columns;
    columns.reserve(static_cast<size_t>(statement.getColumnCount()));
    for (int column = 0; column < statement.getColumnCount(); ++column) {
        // Out of a nested join a name that two of its tables have comes with a number, "ID:1".
        const QString name = QString::fromUtf8(statement.getColumnName(column));
        columns.push_back({name.section(u':', 0, 0), typeOf(statement, column)});
    }
    return columns;
}

FetchedRows::FetchedRows(OpenFile& file, SQLite::Statement& statement) : columns_(shownColumns(statement)) {
    file.run({}, [&](SQLite::Database&) {
        while (statement.executeStep())
            rows_.push_back(storedRow(statement));
    });
}

std::optional<int> FetchedRows::find(qint64 id) const {
    const auto column = std::ranges::find(columns_, u"ID"_s, &ShownColumn::name) - columns_.begin();
    if (column == static_cast<std::ptrdiff_t>(columns_.size())) return {};
    const auto found = std::ranges::find_if(
        rows_, [&](const StoredRow& row) { return row[static_cast<size_t>(column)].toLongLong() == id; });
    if (found == rows_.end()) return {};
    return static_cast<int>(found - rows_.begin());
}

}  // namespace data
