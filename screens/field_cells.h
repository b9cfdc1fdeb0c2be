#pragma once

#include <span>
#include <vector>

class QLabel;
class QWidget;

namespace screens {

/// The width of a box in pixels: what it needs at least, and what it never stretches beyond.
struct BoxRoom {
    int least = 0;
    int most = 0;
};

/// What stands in a frame: a box with its label, a long box over the whole width, or a check box.
struct FieldCell {
    enum class Kind { Box, Long, Check };

    Kind kind = Kind::Box;
    QLabel* label = nullptr;  ///< none for a check box and for a long box that the frame's caption tells of
    QWidget* box = nullptr;
    QWidget* tail = nullptr;  ///< what stands right behind the box: a sign, or a count
    BoxRoom room{};
    bool joins = false;    ///< stands in the same row as the cell before it, right behind it
    bool endsRow = false;  ///< has its row for itself
};

/// Cells side by side from a column on: one of them, or a city with its state and Zip. The first one's label stands in
/// the column's label part.
struct FieldPiece {
    int column = 0;
    int span = 1;  ///< columns
    std::vector<const FieldCell*> cells;
};

/// A row of a frame. Check boxes that follow each other are one line, however many rows they take.
struct FieldLine {
    FieldCell::Kind kind = FieldCell::Kind::Box;
    std::vector<FieldPiece> pieces;
};

/// The columns that all frames of a screen share, in pixels.
struct FieldColumns {
    struct Column {
        int label = 0;
        BoxRoom needs{};
        int box = 0;
    };
    std::vector<Column> columns;
    int width = 0;   ///< of a frame's inside
    int gap = 0;     ///< between a label and its box
    int gutter = 0;  ///< between a box and the next label

    [[nodiscard]] int count() const { return static_cast<int>(columns.size()); }
    [[nodiscard]] int left(int column) const;
    [[nodiscard]] int boxLeft(int column) const;
    /// Right edge of a piece that reaches over the columns; the last column's is the frame's.
    [[nodiscard]] int right(const FieldPiece& piece) const;
};

/// The cells in reading order as lines of so many columns. The last piece of a line reaches to the end.
[[nodiscard]] std::vector<FieldLine> linesOf(std::span<const FieldCell> cells, int columns);

/// Takes part of a piece whose boxes don't fit side by side to lines of their own.
[[nodiscard]] std::vector<FieldLine> fitted(std::vector<FieldLine> lines, const FieldColumns& columns);

/// Widths between least and most for `room` pixels in all: the narrowest grow first, so that boxes become alike.
[[nodiscard]] std::vector<int> shared(std::span<const BoxRoom> needs, int room);

/// What a piece needs beside its boxes behind the first label: further labels, signs, and the gaps.
[[nodiscard]] int besideBoxes(const FieldPiece& piece, const FieldColumns& columns);

}  // namespace screens
