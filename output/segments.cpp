#include "output/segments.h"

namespace output {

namespace {

QStringView pieceOf(QStringView text, qsizetype start, int width) {
    const QStringView rest = text.sliced(std::min(start - 1, text.size()));
    if (rest.size() <= width) return rest;
    const QStringView span = rest.first(width);
    // The blank at which a line is broken stays at its end.
    const qsizetype blank = span.lastIndexOf(u' ');
    if (blank >= 0) return span.first(blank + 1);
    // A character of two code units stays whole where the column can hold it.
    const bool halvesOne = width > 1 && span.back().isHighSurrogate();
    return halvesOne ? span.chopped(1) : span;
}

}  // namespace

const Segment& Segments::add(int colNum, const QString& fullText, int startPos, int colWidth, int lineNum) {
    const QString piece = pieceOf(fullText, startPos, colWidth).toString();
    return segments_[{lineNum, colNum}] = {.colNum = colNum,
                                           .fullText = fullText,
                                           .segmentText = piece.leftJustified(colWidth),
                                           .colWidth = colWidth,
                                           .lineNum = lineNum,
                                           .startPos = startPos,
                                           .textLength = static_cast<int>(piece.size())};
}

Segment Segments::item(int lineNum, int colNum) const {
    const auto found = segments_.find({lineNum, colNum});
    return found == segments_.end() ? Segment{} : found->second;
}

}  // namespace output
