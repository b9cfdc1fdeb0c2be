#include "screens/person_ids.h"

#include <optional>

#include "data/recordset.h"
#include "platform/base/conversions.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

std::optional<qint16> theID(data::Connection& connection, const QString& statement) {
    data::Recordset rows;
    rows.open(statement, connection);
    const QVariant id = rows.value(u"TheID"_s);
    if (id.isNull()) return std::nullopt;
    return platform::toInteger(id.toDouble());
}

}  // namespace

qint16 getFirstPersonID(data::Connection& connection) {
    return theID(connection, u"Select Min(ID) as TheID from Person"_s).value_or(0);
}

qint16 getLastPersonID(data::Connection& connection) {
    const std::optional<qint16> id = theID(connection, u"Select Max(ID) as TheID from Person"_s);
    if (!id) throw platform::RuntimeError(platform::Error::NullUsed);
    return *id;
}

qint16 getNextPersonID(data::Connection& connection, qint16 personID) {
    const auto id = theID(connection, u"Select Min(ID) as TheID from Person Where ID > "_s + QString::number(personID));
    return id ? *id : getLastPersonID(connection);
}

qint16 getPrevPersonID(data::Connection& connection, qint16 personID) {
    const auto id = theID(connection, u"Select Max(ID) as TheID from Person Where ID < "_s + QString::number(personID));
    return id ? *id : getFirstPersonID(connection);
}

}  // namespace screens
