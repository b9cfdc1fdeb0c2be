#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace platform {

// Texts as a font of one width shows them: a wide character and an emoji take two positions, what stands upon the
// character before it takes none. A line is measured and cut by these, and never within what reads as one character.

/// What reads as one character.
struct Grapheme {
    qsizetype start = 0;   ///< code units from the start of the text
    qsizetype length = 0;  ///< code units
    int positions = 1;
};

[[nodiscard]] std::vector<Grapheme> graphemesOf(QStringView text);
/// The positions that a text takes on a line. A control character takes one.
[[nodiscard]] qsizetype positionsOf(QStringView text);
/// The front of a text that takes no more than so many positions, at least one character long.
[[nodiscard]] QStringView fitting(QStringView text, qsizetype positions);
/// The text with blanks behind it, up to so many positions.
[[nodiscard]] QString paddedTo(const QString& text, qsizetype positions);

/// The lines that a text prints as: CR LF, and either alone, ends one.
[[nodiscard]] QStringList printedLines(QString text);

/// Only characters for which every font of one width has a glyph of that width: they are measured by counting.
[[nodiscard]] bool isLatin(QStringView text);
/// One position a code unit throughout, and from left to right.
[[nodiscard]] bool isEven(QStringView text);
/// Whether a picture is in the text.
[[nodiscard]] bool hasEmoji(QStringView text);
/// Whether a character of a script that runs from right to left is in the text.
[[nodiscard]] bool hasRightToLeft(QStringView text);

}  // namespace platform
