#include "session/shown_rows.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace session {

std::optional<Place> placeOfAttachment(std::span<const ShownRows> all, const QString& key) {
    static const QRegularExpression shape(u"^([A-Za-z]+_)(\\d+)_(\\d+)$"_s);
    const QRegularExpressionMatch parts = shape.match(key);
    const auto rows = std::ranges::find(all, parts.captured(1), &ShownRows::attachmentPrefix);
    if (!parts.hasMatch() || rows == all.end()) return {};
    const qint64 first = parts.captured(2).toLongLong();
    const qint64 last = parts.captured(3).toLongLong();
    // A member's own files are kept under his number alone.
    Place place{.table = rows->table->name, .record = rows->inGrid || rows->areMembers() ? first : last};
    if (!rows->inGrid) place.attachedUnder = static_cast<qint16>(first);
    return place;
}

}  // namespace session
