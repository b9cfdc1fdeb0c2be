#include "data/fetched_rows.h"

#include "data/connection_private.h"

namespace data {

namespace {

/// SQLiteCpp takes a column without a declaration, that is an expression, for an error.
std::optional<ColumnType> typeOf(const SQLite::Statement& statement, int column) {
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

FetchedRows::FetchedRows(Connection::Private& connection, SQLite::Statement& statement)
    : columns_(shownColumns(statement)) {
    connection.run({}, [&](SQLite::Database&) {
        while (statement.executeStep())
            rows_.push_back(storedRow(statement));
    });
}

}  // namespace data
