#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <utility>

namespace output {

/// One cell's piece on one line of a listing.
struct Segment {
    int colNum = 0;
    QString fullText{};     ///< the whole cell
    QString segmentText{};  ///< this piece, filled with blanks to the column's width
    int colWidth = 0;       ///< positions
    int lineNum = 0;        ///< from 1
    int startPos = 1;       ///< of the piece in the cell's text, from 1
    int textLength = 0;     ///< of the piece before the blanks

    /// No text of the cell is left behind this piece.
    [[nodiscard]] bool isLast() const { return startPos - 1 + textLength >= fullText.size(); }
};

/// The pieces of one row, by line and column.
class Segments {
public:
    /// Cuts the next piece of a cell: what fits into the column, up to the last blank within it; a word longer than the
    /// column is cut.
    const Segment& add(int colNum, const QString& fullText, int startPos, int colWidth, int lineNum);
    [[nodiscard]] int count() const { return static_cast<int>(segments_.size()); }
    /// An empty piece where a cell has no such line.
    [[nodiscard]] Segment item(int lineNum, int colNum) const;

private:
    std::map<std::pair<int, int>, Segment> segments_;
};

}  // namespace output
