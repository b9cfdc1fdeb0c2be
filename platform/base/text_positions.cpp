#include "platform/base/text_positions.h"

#include <unicode/uchar.h>

#include <QTextBoundaryFinder>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr char32_t emojiStyle = 0xFE0F;
constexpr char16_t softHyphen = 0xAD;
constexpr char16_t firstMark = 0x300;

bool isLatinUnit(QChar unit) {
    return unit < firstMark && unit != softHyphen;
}

/// Calls `visit` with each code point, until it gives true. True if it did.
template <class Visit>
bool anyCodePoint(QStringView text, const Visit& visit) {
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool isPair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        const char32_t point = isPair ? QChar::surrogateToUcs4(text[at], text[at + 1]) : text[at].unicode();
        if (isPair) ++at;
        if (visit(static_cast<UChar32>(point))) return true;
    }
    return false;
}

int positionsOf(UChar32 point) {
    constexpr uint32_t without = U_GC_MN_MASK | U_GC_ME_MASK | U_GC_CF_MASK;
    if ((U_GET_GC_MASK(point) & without) != 0) return 0;
    const int width = u_getIntPropertyValue(point, UCHAR_EAST_ASIAN_WIDTH);
    const bool isWide = width == U_EA_WIDE || width == U_EA_FULLWIDTH;
    return isWide || u_hasBinaryProperty(point, UCHAR_EMOJI_PRESENTATION) != 0 ? 2 : 1;
}

int positionsOfGrapheme(QStringView grapheme) {
    // A carriage return with its line feed is one grapheme.
    if (isLatin(grapheme)) return static_cast<int>(grapheme.size());
    int widest = 0;
    anyCodePoint(grapheme, [&](UChar32 point) {
        widest = std::max(widest, point == emojiStyle ? 2 : positionsOf(point));
        return false;
    });
    return widest;
}

bool runsRightToLeft(UChar32 point) {
    switch (u_charDirection(point)) {
        case U_RIGHT_TO_LEFT:
        case U_RIGHT_TO_LEFT_ARABIC:
        case U_ARABIC_NUMBER:
        case U_RIGHT_TO_LEFT_EMBEDDING:
        case U_RIGHT_TO_LEFT_OVERRIDE:
        case U_RIGHT_TO_LEFT_ISOLATE:
            return true;
        default:
            return false;
    }
}

}  // namespace

QStringList printedLines(QString text) {
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    return text.split(u'\n');
}

bool isLatin(QStringView text) {
    return std::ranges::all_of(text, isLatinUnit);
}

bool isEven(QStringView text) {
    return isLatin(text) || !anyCodePoint(text, [](UChar32 point) {
               return point > 0xFFFF || positionsOf(point) != 1 || runsRightToLeft(point);
           });
}

bool hasEmoji(QStringView text) {
    return anyCodePoint(text, [](UChar32 point) {
        return point == emojiStyle || u_hasBinaryProperty(point, UCHAR_EMOJI_PRESENTATION) != 0;
    });
}

bool hasRightToLeft(QStringView text) {
    return anyCodePoint(text, runsRightToLeft);
}

std::vector<Grapheme> graphemesOf(QStringView text) {
    std::vector<Grapheme> found;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (qsizetype start = 0, end = finder.toNextBoundary(); end > start; start = end, end = finder.toNextBoundary())
        found.push_back({start, end - start, positionsOfGrapheme(text.sliced(start, end - start))});
    return found;
}

qsizetype positionsOf(QStringView text) {
    if (isLatin(text)) return text.size();
    qsizetype positions = 0;
    for (const Grapheme& grapheme : graphemesOf(text))
        positions += grapheme.positions;
    return positions;
}

QStringView fitting(QStringView text, qsizetype positions) {
    // One more is looked at: it could be a mark on the last one.
    if (isLatin(text.first(std::min(positions + 1, text.size())))) return text.first(std::min(positions, text.size()));
    qsizetype end = 0;
    qsizetype taken = 0;
    for (const Grapheme& grapheme : graphemesOf(text)) {
        taken += grapheme.positions;
        if (taken > positions && end > 0) break;
        end = grapheme.start + grapheme.length;
    }
    return text.first(end);
}

QString paddedTo(const QString& text, qsizetype positions) {
    return text + QString(std::max<qsizetype>(0, positions - positionsOf(text)), u' ');
}

}  // namespace platform
