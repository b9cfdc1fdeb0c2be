#include "data/person_deletion.h"

#include "data/recordset.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

const QString owner = u"PersonID"_s;

/// Opens for no rows, only for the names of the columns.
bool belongsToPersons(Connection& connection, const QString& table) {
    Recordset fields;
    fields.open(u"Select * from "_s + table + u" where 1=2"_s, connection);
    return fields.fieldNames().contains(owner, Qt::CaseSensitive);
}

void deleteRows(Connection& connection, const QString& table, int id) {
    Recordset deletion;
    deletion.open(u"Delete from "_s + table + u" where "_s + owner + u" = "_s + QString::number(id), connection);
}

}  // namespace

void deletePersonsRows(Connection& connection, int id) {
    for (const auto& name : connection.tableNames()) {
        if (name.startsWith(u"MSys"_s)) continue;
        const QString table = u'[' + name + u']';
        if (belongsToPersons(connection, table)) deleteRows(connection, table, id);
    }
}

}  // namespace data
