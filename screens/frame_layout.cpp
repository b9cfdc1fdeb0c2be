#include "screens/frame_layout.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <utility>

#include "data/table_definition.h"
#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/text_control.h"
#include "screens/catalogue/screen_fields.h"
#include "screens/field_boxes.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

constexpr int columnsOfBoxes = 2;
constexpr int cellsPerBox = 2;
constexpr int checksPerRow = 4;
constexpr int memoLines = 3;

bool isLong(const FieldBoxes::Text& text) {
    return text.column && text.column->kind == data::FieldKind::LongText;
}

/// One frame's grid, filled from the left to the right and down.
class Grid {
public:
    Grid(QGroupBox& frame, const FieldBoxes& boxes) : frame_(frame), boxes_(boxes), grid_(new QGridLayout(&frame)) {
        grid_->setHorizontalSpacing(8);
        grid_->setVerticalSpacing(6);
        for (int i = 0; i < columnsOfBoxes; ++i)
            grid_->setColumnStretch(i * cellsPerBox + 1, 1);
    }

    void add(int index, const FieldBoxes::Text& text, bool alone) {
        QWidget* box = boxes_.comboOver(index);
        if (!box) box = &text.box->widget();
        text.label->setParent(&frame_);
        box->setParent(&frame_);
        if (isLong(text)) {
            addLong(text, *box, alone);
            return;
        }
        const int cell = (column_ % columnsOfBoxes) * cellsPerBox;
        grid_->addWidget(text.label, row_, cell, Qt::AlignRight | Qt::AlignVCenter);
        grid_->addWidget(box, row_, cell + 1);
        if (++column_ == columnsOfBoxes) newRow();
    }

    /// Sets the sign that belongs to a rate right behind its box.
    void addPercentSign(QWidget& box) {
        int row = 0, column = 0, rows = 0, columns = 0;
        grid_->getItemPosition(grid_->indexOf(&box), &row, &column, &rows, &columns);
        auto* sign = new QLabel(u"%"_s, &frame_);
        sign->setObjectName(u"lblPercent"_s);
        auto* both = new QHBoxLayout;
        both->setSpacing(4);
        grid_->removeWidget(&box);
        both->addWidget(&box, 1);
        both->addWidget(sign);
        grid_->addLayout(both, row, column);
    }

    void addChecks(Range range) {
        newRow();
        auto* row = new QGridLayout;
        row->setHorizontalSpacing(24);
        for (int i = range.first; i <= range.last; ++i) {
            QWidget* box = boxes_.checks().at(static_cast<std::size_t>(i)).box;
            box->setParent(&frame_);
            row->addWidget(box, (i - range.first) / checksPerRow, (i - range.first) % checksPerRow);
        }
        row->setColumnStretch(checksPerRow, 1);
        grid_->addLayout(row, row_, 0, 1, columnsOfBoxes * cellsPerBox);
        ++row_;
    }

    void addAttachments(QLabel& count) {
        count.setParent(&frame_);
        grid_->addWidget(&count, row_, cellsPerBox, 1, cellsPerBox, Qt::AlignRight | Qt::AlignVCenter);
        newRow();
    }

    [[nodiscard]] bool stretches() const { return stretches_; }

private:
    void addLong(const FieldBoxes::Text& text, QWidget& box, bool alone) {
        newRow();
        stretches_ = true;
        box.setMinimumHeight(box.fontMetrics().lineSpacing() * memoLines);
        grid_->setRowStretch(row_, 1);
        if (alone) {
            // The frame's caption says it already.
            text.label->hide();
            grid_->addWidget(&box, row_, 0, 1, columnsOfBoxes * cellsPerBox);
        } else {
            grid_->addWidget(text.label, row_, 0, Qt::AlignRight | Qt::AlignTop);
            grid_->addWidget(&box, row_, 1, 1, columnsOfBoxes * cellsPerBox - 1);
        }
        ++row_;
    }

    void newRow() {
        if (column_ == 0) return;
        column_ = 0;
        ++row_;
    }

    QGroupBox& frame_;
    const FieldBoxes& boxes_;
    QGridLayout* grid_;
    int row_ = 0;
    int column_ = 0;
    bool stretches_ = false;
};

}  // namespace

void layOutFrames(QWidget& page, QVBoxLayout& column, const ScreenDefinition& definition, const FieldBoxes& boxes,
                  QLabel& attachments) {
    bool stretches = false;
    QLabel* count = &attachments;
    for (const FilledFrame& frame : filledFrames(definition)) {
        auto* box = new QGroupBox(QString(frame.caption).replace(u'&', u"&&"_s), &page);
        box->setObjectName(platform::indexedName(u"frFrame"_s, frame.index));
        Grid grid(*box, boxes);
        for (const auto& [i, text] : boxes.texts()) {
            if (!frame.boxes.holds(i)) continue;
            grid.add(i, text, frame.boxes.count() == 1);
            if (text.column && text.column->isRate()) grid.addPercentSign(text.box->widget());
            if (QLabel* label = std::exchange(count, nullptr)) grid.addAttachments(*label);
        }
        if (frame.checks.count() > 0) grid.addChecks(frame.checks);
        column.addWidget(box, grid.stretches() ? 1 : 0);
        stretches = stretches || grid.stretches();
    }
    if (!stretches) column.addStretch(1);
}

}  // namespace screens
