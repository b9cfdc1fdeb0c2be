#pragma once

#include <QDateTime>
#include <QString>

namespace platform {

/// True when toDate() of the text succeeds.
[[nodiscard]] bool isDate(const QString& text);

/// The date that a text stands for, in UTC so that no hour is ever missing; error 13 for any other text.
///
/// Two or three items, the month as a number or an English name, in nearly any order; a time with it or alone, which
/// then lies on day 0 (1899-12-30). Month before day wherever that is possible. A year left out is the clock's.
[[nodiscard]] QDateTime toDate(const QString& text);

/// "5/13/2001"; with " 3:30:00 PM" behind it unless it is midnight; the time alone on day 0. "" for an invalid date.
[[nodiscard]] QString dateText(const QDateTime& date);

/// "13-May-01"; "" for an invalid date.
[[nodiscard]] QString mediumDate(const QDate& date);

/// A date through a pattern of m, d and y, case regardless: "M/d/yy" gives "5/13/01". "" for an invalid date.
[[nodiscard]] QString formatDate(const QDateTime& date, const QString& pattern);

}  // namespace platform
