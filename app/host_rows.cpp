#include "app/host_rows.h"

using namespace Qt::StringLiterals;

namespace app {

HostRows::HostRows(data::Connection& connection) : connection_(connection) {}

qint64 HostRows::count(const QString& counted) {
    const qint64 rows = select(u"SELECT Count(*) as NumRec from "_s + counted).value(u"NumRec"_s).toLongLong();
    rsHost_.close();
    return rows;
}

data::Recordset& HostRows::select(const QString& statement) {
    rsHost_.release();
    rsHost_.open(statement, connection_);
    return rsHost_;
}

}  // namespace app
