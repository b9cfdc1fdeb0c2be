#pragma once

#include <QString>

namespace data {

/// The provider's words for a statement that can't be parsed.
///
/// @param statement the text as SQLite got it
/// @param message   SQLite's own words: "near .."/"unrecognized token"/"incomplete input"
/// @param offset    where it stopped, in characters; negative when it reached the end
[[nodiscard]] QString syntaxWords(const QString& statement, const QString& message, qsizetype offset);

}  // namespace data
