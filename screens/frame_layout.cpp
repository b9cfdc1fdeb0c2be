#include "screens/frame_layout.h"

#include <QGroupBox>
#include <QLabel>
#include <QStyleOptionGroupBox>
#include <QStylePainter>
#include <QVBoxLayout>
#include <utility>

#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/text_control.h"
#include "screens/box_room.h"
#include "screens/catalogue/screen_fields.h"
#include "screens/field_layout.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

constexpr int mostColumns = 3;

/// A frame that may be narrower than its caption, which is cut with an ellipsis then.
class FrameBox : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

    [[nodiscard]] QSize minimumSizeHint() const override { return layout()->totalMinimumSize(); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QStylePainter painter(this);
        QStyleOptionGroupBox option;
        initStyleOption(&option);
        option.text = fontMetrics().elidedText(option.text, Qt::ElideRight, width(), Qt::TextShowMnemonic);
        painter.drawComplexControl(QStyle::CC_GroupBox, option);
    }
};

/// The cells of one frame, in the order of the boxes.
class Cells {
public:
    /// `count`: stands behind the first box; nullptr for none.
    Cells(const FieldBoxes& boxes, QLabel* count) : boxes_(boxes), count_(count) {}

    std::vector<FieldCell> of(const FilledFrame& frame) {
        for (const auto& [index, text] : boxes_.texts()) {
            if (frame.boxes.holds(index)) add(frame, index, text);
        }
        for (int i = frame.checks.first; i <= frame.checks.last; ++i) {
            QWidget* check = boxes_.checks().at(static_cast<std::size_t>(i)).box;
            cells_.push_back({.kind = FieldCell::Kind::Check, .box = check});
        }
        return std::move(cells_);
    }

private:
    void add(const FilledFrame& frame, int index, const FieldBoxes::Text& text) {
        platform::Control* box = text.box;
        if (platform::ComboBox* combo = boxes_.comboOver(index)) box = combo;
        FieldCell cell{.label = text.label, .box = &box->widget()};
        if (text.column && text.column->kind == data::FieldKind::LongText) {
            addLong(frame, cell);
            return;
        }
        cell.room = boxRoom(text, *box);
        cell.joins = joins(text);
        if (text.column && text.column->isRate()) cell.tail = percentSign(*cell.box);
        if (QLabel* count = std::exchange(count_, nullptr)) {
            cell.tail = count;
            cell.endsRow = true;
        }
        cells_.push_back(cell);
    }

    void addLong(const FilledFrame& frame, FieldCell cell) {
        cell.kind = FieldCell::Kind::Long;
        if (frame.boxes.count() == 1) {
            // The frame's caption says it already.
            cell.label->hide();
            cell.label = nullptr;
        }
        cells_.push_back(cell);
    }

    /// A city begins a row that goes on to its state, and to the Zip behind that.
    bool joins(const FieldBoxes::Text& text) {
        if (!text.column) return false;
        const bool isState = text.column->shownIn == data::ShownIn::StateCombo;
        const bool goesOn =
            place_ == Place::City || (place_ == Place::State && text.column->kind == data::FieldKind::Zip);
        if (text.column->kind == data::FieldKind::City) {
            place_ = Place::City;
            return false;
        }
        place_ = !goesOn ? Place::None : isState ? Place::State : place_ == Place::City ? Place::City : Place::None;
        return goesOn;
    }

    QLabel* percentSign(const QWidget& box) const {
        auto* sign = new QLabel(u"%"_s, box.parentWidget());
        sign->setObjectName(u"lblPercent"_s);
        return sign;
    }

    enum class Place { None, City, State };

    const FieldBoxes& boxes_;
    QLabel* count_;
    std::vector<FieldCell> cells_;
    Place place_ = Place::None;
};

}  // namespace

std::vector<QWidget*> layOutFrames(QWidget& page, QVBoxLayout& column, const ScreenDefinition& definition,
                                   const FieldBoxes& boxes, QLabel& attachments) {
    auto sheet = std::make_shared<FieldSheet>(definition.inOneColumn ? 1 : mostColumns);
    std::vector<QWidget*> order;
    bool stretches = false;
    QLabel* count = attachments.isHidden() ? nullptr : &attachments;
    for (const FilledFrame& frame : filledFrames(definition)) {
        auto* box = new FrameBox(QString(frame.caption).replace(u'&', u"&&"_s), &page);
        box->setObjectName(platform::indexedName(u"frFrame"_s, frame.index));
        auto* layout = new FieldLayout(*box, sheet);
        layout->setCells(Cells(boxes, std::exchange(count, nullptr)).of(frame));
        for (const FieldCell& cell : layout->cells())
            order.push_back(cell.box);
        column.addWidget(box, layout->stretches() ? 1 : 0);
        stretches = stretches || layout->stretches();
    }
    if (!stretches) column.addStretch(1);
    return order;
}

}  // namespace screens
