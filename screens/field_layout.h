#pragma once

#include <QLayout>
#include <map>
#include <memory>
#include <vector>

#include "screens/field_cells.h"

namespace screens {

class FieldLayout;

/// What the frames of one screen share: how many columns there are, and where labels and boxes begin in each.
class FieldSheet {
public:
    /// `most`: columns that the screen has at the most.
    explicit FieldSheet(int most) : most_(most) {}

    void add(const FieldLayout& frame) { frames_.push_back(&frame); }
    /// Columns for frames of so many pixels inside.
    [[nodiscard]] const FieldColumns& columns(int width);
    /// Pixels that a frame's inside needs.
    [[nodiscard]] int leastWidth();
    /// Fonts, labels or a count have changed: everything is measured anew.
    void forget() {
        known_ = {};
        ++changes_;
    }
    /// Counts the calls of forget(): what was measured at another count is out of date.
    [[nodiscard]] int changes() const { return changes_; }

private:
    [[nodiscard]] FieldColumns measured(int count, int width) const;
    [[nodiscard]] int wanted(int width) const;
    /// Gives the columns under joined boxes the room that those need.
    void makeRoom(FieldColumns& made, const std::vector<FieldPiece>& joined) const;

    int most_;
    std::vector<const FieldLayout*> frames_;
    FieldColumns known_;
    int changes_ = 0;
};

/// Lays out one frame of a record screen: boxes as wide as what they hold, in one, two or three columns as the width
/// allows, long boxes in whole lines over the height that is left, check boxes side by side.
class FieldLayout : public QLayout {
    Q_OBJECT

public:
    FieldLayout(QWidget& frame, std::shared_ptr<FieldSheet> sheet);
    ~FieldLayout() override;

    /// The cells in reading order; their widgets become the frame's.
    void setCells(std::vector<FieldCell> cells);
    [[nodiscard]] const std::vector<FieldCell>& cells() const { return cells_; }
    /// The frame holds a long box, which takes what height there is.
    [[nodiscard]] bool stretches() const;

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(items_.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;
    void invalidate() override;

private:
    /// Stands the cells from `top` on, where `stand`; returns the height.
    int layOut(const QRect& rect, bool stand) const;
    /// Of the inside for so many pixels of width.
    [[nodiscard]] int heightFor(int width) const;

    std::shared_ptr<FieldSheet> sheet_;
    std::vector<FieldCell> cells_;
    std::vector<QLayoutItem*> items_;

    /// What was measured since the sheet's last change: the toolkit asks many times while a window opens.
    struct Heights {
        int changes = 0;
        std::map<int, int> byWidth;
    };
    mutable Heights heights_;
};

}  // namespace screens
