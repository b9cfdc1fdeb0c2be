#pragma once

#include <QString>

namespace platform {

/// True when toDouble() of the text succeeds.
[[nodiscard]] bool isNumeric(const QString& text);

/// The number that a text stands for: signs on either side, parentheses for negative, a currency sign, commas anywhere
/// in the whole part, exponents with E or D, &H and &O. Error 13 for any other text.
[[nodiscard]] double toDouble(const QString& text);

/// A whole number of 32 bits, halves rounded to the even neighbour. Error 13 for a text that is no number, 6 for one
/// beyond the range.
[[nodiscard]] int toLong(const QString& text);
[[nodiscard]] int toLong(double value);

/// The same for 16 bits.
[[nodiscard]] qint16 toInteger(const QString& text);
[[nodiscard]] qint16 toInteger(double value);

/// The longest number at the front of a text, blanks, tabs and line feeds left out; 0 when there is none. Fails only on
/// a type suffix behind a fractional number (13), as in "50.5%", and on a number too large for a double (6).
[[nodiscard]] double val(const QString& text);

/// A number with the blank that its missing minus sign leaves: " 12", "-12", " .5".
[[nodiscard]] QString str(double value);

/// A number as captions and joined texts show it: at most 15 significant digits, no separators, "0.5".
[[nodiscard]] QString numberText(double value);

/// Rounded to a number of decimals (0 to 22, otherwise error 5), halves to the even neighbour.
[[nodiscard]] double roundHalfEven(double value, int decimals);

/// A number through a pattern such as "#,##0.00", "0" or "0.000%": zeros behind the point are decimals, a comma groups
/// thousands, "%" shows hundredths. Halves are rounded away from zero, on the number as it reads in decimal.
[[nodiscard]] QString formatNumber(double value, const QString& pattern);

}  // namespace platform
