#include "screens/field_layout.h"

#include <QLabel>
#include <QWidget>
#include <algorithm>

#include "platform/forms/memo_box.h"

namespace screens {

namespace {

/// Characters of a frame's width from which on there are two, and three columns.
constexpr int widthOfTwo = 76;
constexpr int widthOfThree = 190;
constexpr int leastMemoLines = 3;

int labelWidth(const FieldCell& cell) {
    return cell.label ? cell.label->sizeHint().width() : 0;
}

int rowHeight(const FieldPiece& piece) {
    int height = 0;
    for (const FieldCell* cell : piece.cells)
        height = std::max(height, cell->box->sizeHint().height());
    return height;
}

/// Widens a column for what begins in it.
void note(FieldColumns& made, const FieldPiece& piece) {
    FieldColumns::Column& column = made.columns[static_cast<std::size_t>(piece.column)];
    const FieldCell& first = *piece.cells.front();
    const bool hasTail = first.tail && !first.tail->isHidden() && !first.endsRow;
    const int tail = hasTail ? made.gap + first.tail->sizeHint().width() : 0;
    column.label = std::max(column.label, labelWidth(first));
    column.needs.least = std::max(column.needs.least, first.room.least + tail);
    if (piece.cells.size() == 1) column.needs.most = std::max(column.needs.most, first.room.most + tail);
}

/// Stands the lines of one frame below each other, or only measures them.
class Stand {
public:
    Stand(const FieldColumns& columns, const QRect& rect, bool moves, int spacing, int spare)
        : columns_(columns), rect_(rect), moves_(moves), spacing_(spacing), spare_(spare), y_(rect.top()) {}

    void add(const FieldLine& line) {
        if (y_ > rect_.top()) y_ += spacing_;
        switch (line.kind) {
            case FieldCell::Kind::Box:
                return addBoxes(line);
            case FieldCell::Kind::Long:
                return addLong(*line.pieces.front().cells.front());
            case FieldCell::Kind::Check:
                return addChecks(line.pieces.front().cells);
        }
    }
    [[nodiscard]] int height() const { return y_ - rect_.top(); }

private:
    void addBoxes(const FieldLine& line) {
        int height = 0;
        for (const FieldPiece& piece : line.pieces)
            height = std::max(height, rowHeight(piece));
        if (moves_) {
            for (const FieldPiece& piece : line.pieces)
                standPiece(piece, height);
        }
        y_ += height;
    }

    void standPiece(const FieldPiece& piece, int height) {
        std::vector<BoxRoom> needs;
        needs.reserve(piece.cells.size());
        for (const FieldCell* cell : piece.cells)
            needs.push_back(cell->room);
        int x = columns_.boxLeft(piece.column);
        const std::vector<int> widths = shared(needs, columns_.right(piece) - x - besideBoxes(piece, columns_));
        for (std::size_t i = 0; i < piece.cells.size(); ++i) {
            const FieldCell& cell = *piece.cells[i];
            if (i == 0) {
                standLabel(cell, x - columns_.gap, height);
            } else {
                x += columns_.gutter + labelWidth(cell) + columns_.gap;
                standLabel(cell, x - columns_.gap, height);
            }
            stand(*cell.box, x, cell.box->sizeHint().height(), widths[i], height);
            x += widths[i];
            if (!cell.tail || cell.tail->isHidden()) continue;
            const QSize tail = cell.tail->sizeHint();
            stand(*cell.tail, x + columns_.gap, tail.height(), tail.width(), height);
            x += columns_.gap + tail.width();
        }
    }

    void standLabel(const FieldCell& cell, int right, int height) {
        if (!cell.label) return;
        const QSize size = cell.label->sizeHint();
        stand(*cell.label, right - size.width(), size.height(), size.width(), height);
    }

    /// In the middle of a row.
    void stand(QWidget& widget, int x, int height, int width, int rowHeight) const {
        widget.setGeometry(rect_.left() + x, y_ + (rowHeight - height) / 2, width, height);
    }

    void addLong(const FieldCell& cell) {
        auto& memo = static_cast<platform::MemoBox&>(*cell.box);
        int x = 0;
        if (cell.label && labelWidth(cell) <= columns_.columns.front().label) {
            x = columns_.boxLeft(0);
            const int line = cell.label->sizeHint().height();
            if (moves_) standLabel(cell, x - columns_.gap, line + memo.heightOfLines(0));
        } else if (cell.label) {
            const int height = cell.label->sizeHint().height();
            if (moves_) cell.label->setGeometry(rect_.left(), y_, rect_.width(), height);
            y_ += height;
        }
        const int height = memo.heightOfLines(leastMemoLines) + spare_;
        if (moves_) memo.setGeometry(rect_.left() + x, y_, rect_.width() - x, memo.wholeLines(height));
        y_ += height;
    }

    void addChecks(const std::vector<const FieldCell*>& checks) {
        int width = 0;
        int height = 0;
        for (const FieldCell* check : checks) {
            width = std::max(width, check->box->sizeHint().width());
            height = std::max(height, check->box->sizeHint().height());
        }
        const int all = static_cast<int>(checks.size());
        const int pitch = width + columns_.gutter;
        const int left = columns_.boxLeft(0) + width <= rect_.width() ? columns_.boxLeft(0) : 0;
        const int fitting = std::clamp((rect_.width() - left + columns_.gutter) / pitch, 1, all);
        const int rows = (all + fitting - 1) / fitting;
        const int inRow = (all + rows - 1) / rows;
        for (int i = 0; moves_ && i < all; ++i) {
            checks[static_cast<std::size_t>(i)]->box->setGeometry(
                rect_.left() + left + (i % inRow) * pitch, y_ + (i / inRow) * (height + spacing_), width, height);
        }
        y_ += rows * (height + spacing_) - spacing_;
    }

    const FieldColumns& columns_;
    QRect rect_;
    bool moves_;
    int spacing_;
    int spare_;  ///< height for each long box beyond its least
    int y_;
};

}  // namespace

// FieldSheet -------------------------------------------------------------------------------------------------------

int FieldSheet::wanted(int width) const {
    const int character = frames_.front()->parentWidget()->fontMetrics().averageCharWidth();
    const int characters = width / std::max(1, character);
    const int columns = characters >= widthOfThree ? 3 : characters >= widthOfTwo ? 2 : 1;
    return std::min(columns, most_);
}

const FieldColumns& FieldSheet::columns(int width) {
    if (known_.count() > 0 && known_.width == width) return known_;
    for (int count = wanted(width); count > 0; --count) {
        known_ = measured(count, width);
        int needed = known_.gutter * (count - 1);
        for (const FieldColumns::Column& column : known_.columns)
            needed += column.label + known_.gap + column.needs.least;
        if (needed <= width) break;
    }
    return known_;
}

FieldColumns FieldSheet::measured(int count, int width) const {
    FieldColumns made;
    const QFontMetrics metrics = frames_.front()->parentWidget()->fontMetrics();
    made.columns.resize(static_cast<std::size_t>(count));
    made.width = width;
    made.gap = metrics.averageCharWidth();
    made.gutter = 2 * metrics.averageCharWidth() + made.gap;
    std::vector<FieldPiece> joined;
    for (const FieldLayout* frame : frames_) {
        for (const FieldLine& line : linesOf(frame->cells(), count)) {
            if (line.kind != FieldCell::Kind::Box) continue;
            for (const FieldPiece& piece : line.pieces) {
                note(made, piece);
                if (piece.cells.size() > 1) joined.push_back(piece);
            }
        }
    }
    makeRoom(made, joined);
    int room = width - made.gutter * (count - 1);
    std::vector<BoxRoom> needs;
    for (FieldColumns::Column& column : made.columns) {
        room -= column.label + made.gap;
        column.needs.most = std::max(column.needs.most, column.needs.least);
        needs.push_back(column.needs);
    }
    const std::vector<int> widths = shared(needs, room);
    for (std::size_t i = 0; i < widths.size(); ++i)
        made.columns[i].box = widths[i];
    return made;
}

void FieldSheet::makeRoom(FieldColumns& made, const std::vector<FieldPiece>& joined) const {
    for (const FieldPiece& piece : joined) {
        const int last = piece.column + piece.span - 1;
        // The last piece of a line has all the room to the frame's edge.
        if (last == piece.column || last + 1 >= made.count()) continue;
        int least = besideBoxes(piece, made);
        int most = least;
        for (const FieldCell* cell : piece.cells) {
            least += cell->room.least;
            most += cell->room.most;
        }
        // The boxes stand over the labels of the further columns too.
        int over = 0;
        for (int i = piece.column + 1; i <= last; ++i)
            over += made.gutter + made.columns[static_cast<std::size_t>(i)].label + made.gap;
        for (int i = piece.column; i <= last; ++i) {
            BoxRoom& needs = made.columns[static_cast<std::size_t>(i)].needs;
            needs.least = std::max(needs.least, (least - over + piece.span - 1) / piece.span);
            needs.most = std::max(needs.most, (most - over) / piece.span);
        }
    }
}

int FieldSheet::leastWidth() {
    const FieldColumns one = measured(1, 0);
    return one.boxLeft(0) + one.columns.front().needs.least;
}

// FieldLayout ------------------------------------------------------------------------------------------------------

FieldLayout::FieldLayout(QWidget& frame, std::shared_ptr<FieldSheet> sheet)
    : QLayout(&frame), sheet_(std::move(sheet)) {
    sheet_->add(*this);
}

FieldLayout::~FieldLayout() {
    qDeleteAll(items_);
}

void FieldLayout::setCells(std::vector<FieldCell> cells) {
    cells_ = std::move(cells);
    for (const FieldCell& cell : cells_) {
        for (QWidget* widget : {static_cast<QWidget*>(cell.label), cell.box, cell.tail}) {
            if (widget) addWidget(widget);
        }
    }
}

bool FieldLayout::stretches() const {
    return std::ranges::any_of(cells_, [](const FieldCell& cell) { return cell.kind == FieldCell::Kind::Long; });
}

void FieldLayout::addItem(QLayoutItem* item) {
    items_.push_back(item);
}

QLayoutItem* FieldLayout::itemAt(int index) const {
    return index < 0 || index >= count() ? nullptr : items_[static_cast<std::size_t>(index)];
}

QLayoutItem* FieldLayout::takeAt(int index) {
    QLayoutItem* taken = itemAt(index);
    if (taken) items_.erase(items_.begin() + index);
    return taken;
}

Qt::Orientations FieldLayout::expandingDirections() const {
    return stretches() ? Qt::Horizontal | Qt::Vertical : Qt::Orientations(Qt::Horizontal);
}

int FieldLayout::heightForWidth(int width) const {
    const QMargins margins = contentsMargins();
    return heightFor(width - margins.left() - margins.right()) + margins.top() + margins.bottom();
}

int FieldLayout::heightFor(int width) const {
    if (heights_.changes != sheet_->changes()) heights_ = {.changes = sheet_->changes(), .byWidth = {}};
    const auto [height, isNew] = heights_.byWidth.try_emplace(width);
    if (isNew) height->second = layOut(QRect(0, 0, width, 0), false);
    return height->second;
}

QSize FieldLayout::sizeHint() const {
    const int width = parentWidget()->fontMetrics().averageCharWidth() * widthOfTwo;
    return {width, heightForWidth(width)};
}

QSize FieldLayout::minimumSize() const {
    // No height: what is needed depends on the width.
    return QSize(sheet_->leastWidth(), 0).grownBy(contentsMargins());
}

void FieldLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    layOut(rect.marginsRemoved(contentsMargins()), true);
}

void FieldLayout::invalidate() {
    sheet_->forget();
    QLayout::invalidate();
}

int FieldLayout::layOut(const QRect& rect, bool stand) const {
    const FieldColumns& columns = sheet_->columns(rect.width());
    const std::vector<FieldLine> lines = fitted(linesOf(cells_, columns.count()), columns);
    const int spacing = parentWidget()->fontMetrics().height() / 3;
    Stand measure(columns, rect, false, spacing, 0);
    for (const FieldLine& line : lines)
        measure.add(line);
    if (!stand) return measure.height();
    const auto memos = static_cast<int>(std::ranges::count(lines, FieldCell::Kind::Long, &FieldLine::kind));
    const int spare = memos == 0 ? 0 : std::max(0, (rect.height() - measure.height()) / memos);
    Stand standing(columns, rect, true, spacing, spare);
    for (const FieldLine& line : lines)
        standing.add(line);
    return standing.height();
}

}  // namespace screens
