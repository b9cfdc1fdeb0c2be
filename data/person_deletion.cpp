#include "data/person_deletion.h"

#include "data/recordset.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

/// Opens for no rows, only for the names of the columns.
bool hasColumn(Connection& connection, const QString& table, const QString& column) {
    Recordset fields;
    fields.open(u"Select * from "_s + table + u" where 1=2"_s, connection);
    return fields.fieldNames().contains(column, Qt::CaseSensitive);
}

void deleteRows(Connection& connection, const QString& table, const QString& column, int id) {
    Recordset deletion;
    deletion.setLockType(LockType::Optimistic);
    deletion.setCursorLocation(CursorLocation::Client);
    deletion.setCursorType(CursorType::Static);
    deletion.open(u"Delete * from "_s + table + u" where "_s + column + u" = "_s + QString::number(id), connection);
}

}  // namespace

void deleteFromAllTables(Connection& connection, const QString& column, int id) {
    for (const auto& name : connection.tableNames()) {
        if (name.startsWith(u"MSys"_s)) continue;
        const QString table = u'[' + name + u']';
        if (hasColumn(connection, table, column)) deleteRows(connection, table, column, id);
    }
}

}  // namespace data
