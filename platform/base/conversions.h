#pragma once

#include <QString>

#include "platform/base/region.h"

namespace platform {

/// True when toDouble() of the text succeeds.
[[nodiscard]] bool isNumeric(const QString& text, const Region& region = systemRegion());

/// The number that a text stands for: signs on either side, parentheses for negative, a currency sign, thousands
/// separators anywhere in the whole part, exponents with E or D, &H and &O. Error 13 for any other text.
[[nodiscard]] double toDouble(const QString& text, const Region& region = systemRegion());

/// A whole number of 32 bits, halves rounded to the even neighbour. Error 13 for a text that is no number, 6 for one
/// beyond the range.
[[nodiscard]] int toLong(const QString& text, const Region& region = systemRegion());
[[nodiscard]] int toLong(double value);

/// The same for 16 bits.
[[nodiscard]] qint16 toInteger(const QString& text, const Region& region = systemRegion());
[[nodiscard]] qint16 toInteger(double value);

/// A typed number as a statement takes it: its digits, point and separators turned into those of the United States,
/// whatever else is in it left as it stands, for the database to judge.
[[nodiscard]] QString statementNumber(const QString& text, const Region& region = systemRegion());

/// The longest number at the front of a text, blanks, tabs and line feeds left out; 0 when there is none. The same in
/// every region. Fails only on a type suffix behind a fractional number (13), as in "50.5%", and on a number too large
/// for a double (6).
[[nodiscard]] double val(const QString& text);

/// A number with the blank that its missing minus sign leaves: " 12", "-12", " .5". The same in every region.
[[nodiscard]] QString str(double value);

/// A number of at most 15 significant digits without separators, "0.5", the same in every region.
[[nodiscard]] QString plainNumber(double value);
/// The same as captions and joined texts show it.
[[nodiscard]] QString numberText(double value, const Region& region = systemRegion());

/// Rounded to a number of decimals (0 to 22, otherwise error 5), halves to the even neighbour.
[[nodiscard]] double roundHalfEven(double value, int decimals);

/// A number through a pattern such as "#,##0.00", "0" or "0.000%": zeros behind the point are decimals, a comma groups
/// thousands, "%" shows hundredths; point and comma stand for those of the region. Halves are rounded away from zero,
/// on the number as it reads in decimal.
[[nodiscard]] QString formatNumber(double value, const QString& pattern, const Region& region = systemRegion());

}  // namespace platform
