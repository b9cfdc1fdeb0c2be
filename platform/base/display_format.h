#pragma once

#include <QString>
#include <QVariant>

#include "platform/base/record_source.h"
#include "platform/base/region.h"

namespace platform {

/// What a bound box shows of a column's value. Null shows "".
///
/// A format acts by the column's kind: number formats on Number and Counter, date formats on Date; any other value
/// shows plain, so a date under a number format is no serial number that nobody could read back. For the same reason a
/// two-digit year grows to four digits where two would read back as another century. What is shown is written as in
/// the region and read back from there by storedValue().
[[nodiscard]] QString displayText(const QVariant& value, ColumnKind kind, const QString& format,
                                  const Region& region = systemRegion());

/// What a column stores of the text left in its box: "" on Number, Counter, Date and YesNo is Null. Error -2147217887
/// for a text that is no value of the kind.
[[nodiscard]] QVariant storedValue(const QString& text, ColumnKind kind, const Region& region = systemRegion());

}  // namespace platform
