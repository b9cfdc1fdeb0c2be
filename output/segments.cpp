#include "output/segments.h"

#include "platform/base/text_positions.h"

namespace output {

namespace {

QStringView pieceOf(QStringView text, qsizetype start, int width) {
    const QStringView rest = text.sliced(std::min(start - 1, text.size()));
    const QStringView span = platform::fitting(rest, width);
    if (span.size() == rest.size()) return rest;
    // The blank at which a line is broken stays at its end.
    const qsizetype blank = span.lastIndexOf(u' ');
    return blank >= 0 ? span.first(blank + 1) : span;
}

}  // namespace

const Segment& Segments::add(int colNum, const QString& fullText, int startPos, int colWidth, int lineNum) {
    const QString piece = pieceOf(fullText, startPos, colWidth).toString();
    return segments_[{lineNum, colNum}] = {.colNum = colNum,
                                           .fullText = fullText,
                                           .segmentText = platform::paddedTo(piece, colWidth),
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
