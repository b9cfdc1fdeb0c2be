#include "session/record_locator.h"

#include <QScopeGuard>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace session {

data::RowScan& RecordLocator::rowOf(const data::Table& table) {
    std::unique_ptr<data::RowScan>& row = rows_[&table];
    if (row) return *row;
    const auto shown = std::ranges::find(all_, &table, &ShownRows::table);
    const bool isTyped = shown != all_.end() && !shown->typeColumn.isEmpty();
    const bool hasOwner = table.keys == data::Keys::Owner || table.keys == data::Keys::OwnerAndDoctor;
    const QString type = isTyped ? QString(shown->typeColumn) : u"0"_s;
    const QString member = hasOwner ? u"PersonID"_s : u"0"_s;
    const QString site = table.keys == data::Keys::Parent ? u"ParentID"_s : u"0"_s;
    row = std::make_unique<data::RowScan>(
        connection_, u"SELECT %1, %2, %3 FROM \"%4\" WHERE ID = ?"_s.arg(member, type, site, table.name));
    return *row;
}

std::optional<Location> RecordLocator::locate(const data::Table& table, qint64 record) {
    data::RowScan& row = rowOf(table);
    const auto rest = qScopeGuard([&] { row.rest(); });
    if (!row.find(record)) return {};
    const qint64 type = row.whole(1);
    const auto shown = std::ranges::find_if(all_, [&](const ShownRows& rows) {
        return rows.table == &table && (rows.typeColumn.isEmpty() || rows.type == type);
    });
    if (shown == all_.end()) return {};
    Location location{.shown = &*shown, .member = static_cast<qint16>(row.whole(0)), .site = row.whole(2)};
    if (shown->areMembers()) location.member = static_cast<qint16>(record);
    if (!shown->siteTable) return location;
    const std::optional<Location> site = locate(*shown->siteTable, location.site);
    if (!site) return {};
    location.member = site->member;
    return location;
}

}  // namespace session
