#include "platform/forms/long_text.h"

#include <algorithm>

namespace platform {

namespace {

constexpr qsizetype longestStretch = 10'000;

/// Lines break at blanks, and between any two characters of the East Asian scripts.
bool breaksLines(QChar c) {
    constexpr char16_t firstEastAsian = 0x2E80;
    constexpr char16_t lastEastAsian = 0x9FFF;
    return c.isSpace() || (c >= firstEastAsian && c <= lastEastAsian);
}

}  // namespace

qsizetype shownLength(const QString& text, qsizetype most) {
    const qsizetype limit = std::min(text.size(), most);
    qsizetype length = 0;
    for (qsizetype stretch = 0; length < limit && stretch <= longestStretch; ++length)
        stretch = breaksLines(text.at(length)) ? 0 : stretch + 1;
    if (length == text.size() || length == 0) return length;
    const bool cutsCharacter = text.at(length).isLowSurrogate();
    const bool cutsLineEnd = text.at(length) == u'\n' && text.at(length - 1) == u'\r';
    return cutsCharacter || cutsLineEnd ? length - 1 : length;
}

}  // namespace platform
