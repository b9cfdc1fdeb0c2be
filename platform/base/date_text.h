#pragma once

#include <QDateTime>
#include <QString>

#include "platform/base/region.h"

namespace platform {

/// True when toDate() of the text succeeds.
[[nodiscard]] bool isDate(const QString& text, const Region& region = systemRegion());

/// The date that a text stands for, in UTC so that no hour is ever missing; error 13 for any other text.
///
/// Two or three items, the month as a number or as a name of the region or an English one, in nearly any order; a time
/// with it or alone, which then lies on day 0 (1899-12-30). The order of the region wherever that is possible. A year
/// left out is the clock's.
[[nodiscard]] QDateTime toDate(const QString& text, const Region& region = systemRegion());

/// "5/13/2001"; with " 3:30:00 PM" behind it unless it is midnight; the time alone on day 0. "" for an invalid date.
[[nodiscard]] QString dateText(const QDateTime& date, const Region& region = systemRegion());

/// "13-May-01"; "" for an invalid date.
[[nodiscard]] QString mediumDate(const QDate& date, const Region& region = systemRegion());

/// A date through a pattern of m, d and y, case regardless, whose parts come in the order of the region with its
/// separator: "M/d/yy" gives "5/13/01", or "13.5.01". "" for an invalid date.
[[nodiscard]] QString formatDate(const QDateTime& date, const QString& pattern, const Region& region = systemRegion());

}  // namespace platform
