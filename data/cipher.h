#pragma once

#include <QString>

namespace data {

/// Hides a text from a glance, or brings it back: both are the same step. It protects from nobody who has the file.
///
/// Every character is taken as its Windows-1252 code and combined with the complemented key, repeated from its start;
/// the result has as many characters as the text. A character outside the code page becomes "?" and doesn't come back.
[[nodiscard]] QString cipher(const QString& text, const QString& key);

/// The same with the program's own key.
[[nodiscard]] QString cipher(const QString& text);

}  // namespace data
