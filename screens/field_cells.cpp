#include "screens/field_cells.h"

#include <QLabel>
#include <algorithm>
#include <numeric>

namespace screens {

namespace {

/// A city, its state and its Zip want the room of two columns.
constexpr int columnsOfJoined = 2;

/// Fills lines with pieces from the left to the right.
class Flow {
public:
    explicit Flow(int columns) : columns_(columns) {}

    void add(FieldCell::Kind kind, FieldPiece piece, bool endsRow) {
        if (column_ + piece.span > columns_ || lines_.empty() || lines_.back().kind != kind) newLine(kind);
        piece.column = column_;
        column_ += piece.span;
        lines_.back().pieces.push_back(std::move(piece));
        if (endsRow) column_ = columns_;
    }
    void addCheck(const FieldCell& check) {
        if (lines_.empty() || lines_.back().kind != FieldCell::Kind::Check) {
            add(FieldCell::Kind::Check, {0, columns_, {}}, true);
        }
        lines_.back().pieces.front().cells.push_back(&check);
    }
    std::vector<FieldLine> take() {
        for (FieldLine& line : lines_)
            line.pieces.back().span = columns_ - line.pieces.back().column;
        return std::move(lines_);
    }

private:
    void newLine(FieldCell::Kind kind) {
        lines_.push_back({kind, {}});
        column_ = 0;
    }

    int columns_;
    int column_ = 0;
    std::vector<FieldLine> lines_;
};

int leastWidth(const FieldPiece& piece, const FieldColumns& columns) {
    return std::accumulate(piece.cells.begin(), piece.cells.end(), besideBoxes(piece, columns),
                           [](int sum, const FieldCell* cell) { return sum + cell->room.least; });
}

/// The cells from the end that have to go so that the others fit.
FieldPiece cutToFit(FieldPiece& piece, const FieldColumns& columns) {
    FieldPiece rest{0, columns.count(), {}};
    const int room = columns.right(piece) - columns.boxLeft(piece.column);
    while (piece.cells.size() > 1 && leastWidth(piece, columns) > room) {
        // A Zip alone would be a poor line: it takes its state along.
        const std::size_t gone = rest.cells.empty() && piece.cells.size() > 2 ? 2 : 1;
        const auto from = piece.cells.end() - static_cast<std::ptrdiff_t>(gone);
        rest.cells.insert(rest.cells.begin(), from, piece.cells.end());
        piece.cells.erase(from, piece.cells.end());
    }
    return rest;
}

}  // namespace

int FieldColumns::left(int column) const {
    int x = 0;
    for (int i = 0; i < column; ++i)
        x += columns[static_cast<std::size_t>(i)].label + gap + columns[static_cast<std::size_t>(i)].box + gutter;
    return x;
}

int FieldColumns::boxLeft(int column) const {
    return left(column) + columns[static_cast<std::size_t>(column)].label + gap;
}

int FieldColumns::right(const FieldPiece& piece) const {
    const int next = piece.column + piece.span;
    return next >= count() ? width : left(next) - gutter;
}

std::vector<FieldLine> linesOf(std::span<const FieldCell> cells, int columns) {
    Flow flow(columns);
    for (std::size_t i = 0; i < cells.size();) {
        const FieldCell& first = cells[i++];
        if (first.kind == FieldCell::Kind::Check) {
            flow.addCheck(first);
            continue;
        }
        FieldPiece piece{0, 1, {&first}};
        for (; i < cells.size() && cells[i].joins; ++i)
            piece.cells.push_back(&cells[i]);
        if (piece.cells.size() > 1) piece.span = std::min(columns, columnsOfJoined);
        if (first.kind == FieldCell::Kind::Long) piece.span = columns;
        flow.add(first.kind, std::move(piece), first.endsRow);
    }
    return flow.take();
}

std::vector<FieldLine> fitted(std::vector<FieldLine> lines, const FieldColumns& columns) {
    std::vector<FieldLine> result;
    for (FieldLine& line : lines) {
        result.push_back(std::move(line));
        if (result.back().kind != FieldCell::Kind::Box) continue;
        for (FieldPiece rest = cutToFit(result.back().pieces.back(), columns); !rest.cells.empty();) {
            result.push_back({FieldCell::Kind::Box, {std::move(rest)}});
            rest = cutToFit(result.back().pieces.back(), columns);
        }
    }
    return result;
}

std::vector<int> shared(std::span<const BoxRoom> needs, int room) {
    std::vector<int> widths;
    int most = 0;
    for (const BoxRoom& need : needs)
        most = std::max(most, need.most);
    // The level that all are filled up to is found by halving.
    const auto filled = [&](int level) {
        return std::accumulate(needs.begin(), needs.end(), 0, [level](int sum, const BoxRoom& need) {
            return sum + std::clamp(level, need.least, need.most);
        });
    };
    int low = 0;
    for (int high = most; low < high;) {
        const int middle = (low + high + 1) / 2;
        filled(middle) <= room ? low = middle : high = middle - 1;
    }
    widths.reserve(needs.size());
    for (const BoxRoom& need : needs)
        widths.push_back(std::clamp(low, need.least, need.most));
    return widths;
}

int besideBoxes(const FieldPiece& piece, const FieldColumns& columns) {
    int width = 0;
    for (const FieldCell* cell : piece.cells) {
        if (cell != piece.cells.front()) width += columns.gutter + cell->label->sizeHint().width() + columns.gap;
        if (cell->tail && !cell->tail->isHidden()) width += columns.gap + cell->tail->sizeHint().width();
    }
    return width;
}

}  // namespace screens
