#pragma once

#include <QString>

namespace platform {

/// How many characters a box lays out at once. Laying out takes time by the length, and by the square of the length
/// where a text can't be broken: one pasted by mistake would stop the program for minutes.
inline constexpr qsizetype mostInMemo = 64'000;
inline constexpr qsizetype mostInLine = 10'000;
inline constexpr qsizetype mostInCombo = 2'000;
inline constexpr qsizetype mostInCell = 2'000;

/// Number of leading characters of a text that a box of at most `most` shows: all of them, or fewer where the text is
/// longer or has an unbroken stretch that is. No character and no line end is cut in half.
[[nodiscard]] qsizetype shownLength(const QString& text, qsizetype most);

}  // namespace platform
