#include "screens/field_boxes.h"

#include <QLabel>
#include <algorithm>
#include <stdexcept>

#include "platform/base/date_text.h"
#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/memo_box.h"
#include "platform/forms/text_box.h"
#include "screens/catalogue/screen_fields.h"

using namespace Qt::StringLiterals;
using platform::indexedName;

namespace screens {

namespace {

bool isDate(const FieldBoxes::Text& text) {
    return text.column && text.column->kind == data::FieldKind::Date;
}

bool isInCombo(const FieldBoxes::Text& text) {
    return text.column && text.column->shownIn != data::ShownIn::Box;
}

}  // namespace

FieldBoxes::FieldBoxes(QWidget& form, const ScreenDefinition& definition, OwnerBox owner)
    : definition_(definition), fields_(screenFields(definition)) {
    if (owner != OwnerBox::None) makeOwner(form, owner);
    int index = definition.firstField();
    for (const data::Column& column : fields_) {
        if (column.kind == data::FieldKind::YesNo) {
            makeCheck(form, column);
        } else {
            makeText(form, index++, column);
        }
    }
    for (const auto& [box, text] : texts_) {
        if (isInCombo(text)) makeCombo(form, box);
    }
}

FieldBoxes::~FieldBoxes() = default;

FieldBoxes::Text& FieldBoxes::addText(QWidget& form, int index, platform::TextControl* box, const QString& label) {
    Text text;
    text.box = box;
    box->setName(indexedName(u"txtFields"_s, index));
    box->setSpokenName(label);
    text.label = new QLabel(label, &form);
    text.label->setObjectName(indexedName(u"lblLabels"_s, index));
    text.label->setBuddy(&box->widget());
    return texts_.emplace(index, std::move(text)).first->second;
}

void FieldBoxes::makeOwner(QWidget& form, OwnerBox owner) {
    const Text& text = addText(form, 0, new platform::TextBox(&form), definition_.ownerLabel);
    if (owner == OwnerBox::Name) return;
    owner_ = new platform::ComboBox(&form);
    owner_->setName(indexedName(u"cbFields"_s, 0));
    owner_->setSpokenName(text.label->text());
    owner_->setLocked(true);
    putOver(text, *owner_);
}

void FieldBoxes::makeText(QWidget& form, int index, const data::Column& column) {
    platform::TextControl* box = nullptr;
    if (column.kind == data::FieldKind::LongText) {
        box = new platform::MemoBox(&form);
    } else {
        box = new platform::TextBox(&form);
    }
    box->setMaxLength(column.maxLength);
    box->widget().setToolTip(column.hint);
    Text& text = addText(form, index, box, column.label);
    text.column = &column;
    if (column.isStored() && !isInCombo(text)) {
        text.binding = std::make_unique<platform::Binding>(*box, column.name, column.format);
    }
}

void FieldBoxes::makeCheck(QWidget& form, const data::Column& column) {
    Check check{new platform::CheckBox(&form), nullptr};
    check.box->setName(indexedName(u"chkFields"_s, static_cast<int>(checks_.size())));
    check.box->setText(column.label);
    check.box->setToolTip(column.hint);
    if (column.isStored()) check.binding = std::make_unique<platform::Binding>(*check.box, column.name, column.format);
    checks_.push_back(std::move(check));
}

void FieldBoxes::makeCombo(QWidget& form, int shadow) {
    const Text& text = texts_.at(shadow);
    Combo combo{new platform::ComboBox(&form), shadow, text.column, nullptr};
    const int index = definition_.firstField() + static_cast<int>(combos_.size());
    combo.box->setName(definition_.soleCombo ? u"cbFields"_s : indexedName(u"cbFields"_s, index));
    combo.box->setCompletes(text.column->shownIn == data::ShownIn::StateCombo);
    combo.box->setSpokenName(text.label->text());
    combo.binding = std::make_unique<platform::Binding>(*combo.box, text.column->name, QString(), true);
    putOver(text, *combo.box);
    combos_.push_back(std::move(combo));
}

void FieldBoxes::putOver(const Text& shadow, platform::ComboBox& combo) {
    QWidget& box = shadow.box->widget();
    box.hide();
    box.setFocusPolicy(Qt::NoFocus);
    shadow.box->holdDisplay();
    shadow.label->setBuddy(&combo);
}

QString FieldBoxes::label(int index) const {
    return texts_.at(index).label->text();
}

int FieldBoxes::indexOf(QLatin1StringView column) const {
    const auto found = std::ranges::find_if(
        texts_, [&](const auto& each) { return each.second.column && each.second.column->name == column; });
    if (found == texts_.end()) throw std::out_of_range("no box for " + column.toString().toStdString());
    return found->first;
}

platform::ComboBox* FieldBoxes::comboOver(int box) const {
    if (box == 0 && owner_) return owner_;
    const auto found = std::ranges::find(combos_, box, &Combo::shadow);
    return found == combos_.end() ? nullptr : found->box;
}

std::optional<data::FieldKind> FieldBoxes::requiredKind(int box) const {
    const data::Column* column = texts_.at(box).column;
    if (!column || column->key() == definition_.unchecked) return {};
    const bool isChecked = column->kind == data::FieldKind::Date || column->kind == data::FieldKind::Number;
    return isChecked ? std::optional(column->kind) : std::nullopt;
}

void FieldBoxes::bind(platform::RecordSource* rows) {
    for (const auto& [index, text] : texts_) {
        if (!text.binding) continue;
        text.binding->setSource(rows);
        if (isDate(text)) text.binding->setSource(nullptr);
    }
    for (const Check& check : checks_) {
        if (check.binding) check.binding->setSource(rows);
    }
}

void FieldBoxes::bindDates(platform::RecordSource* rows) {
    for (const auto& [index, text] : texts_) {
        if (isDate(text)) text.binding->setSource(rows);
    }
}

void FieldBoxes::bindCombos(platform::RecordSource* rows) {
    for (const Combo& combo : combos_)
        combo.binding->setSource(rows);
}

void FieldBoxes::writeCombos(platform::RecordSource& rows, bool isNew) const {
    for (const Combo& combo : combos_) {
        const bool speaks = isNew || combo.binding->isBound() || !combo.box->text().isEmpty();
        if (speaks) rows.setValue(combo.column->name, combo.box->text());
    }
}

void FieldBoxes::writeDates(platform::RecordSource& rows) const {
    for (const auto& [index, text] : texts_) {
        if (!isDate(text)) continue;
        // Binding shows what the row holds, so the typed text is kept first.
        const QString typed = text.box->text();
        text.binding->setSource(&rows);
        if (platform::isDate(typed)) {
            rows.setValue(text.column->name, platform::toDate(typed));
            // Until it is stored the date stands as typed; a refused save gives it back like this.
            text.box->setText(typed);
        } else if (typed.isEmpty()) {
            rows.setValue(text.column->name, QVariant());
        }
    }
}

void FieldBoxes::fillCombos(const QStringList& states) {
    const QStringList statuses(definition_.statusItems.begin(), definition_.statusItems.end());
    for (const Combo& combo : combos_)
        combo.box->addItems(combo.column->shownIn == data::ShownIn::StatusCombo ? statuses : states);
}

void FieldBoxes::orderTabs(const std::vector<QWidget*>& order) {
    for (std::size_t i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

void FieldBoxes::clearUnstored() {
    for (const Check& check : checks_) {
        if (!check.binding) check.box->setValue(0);
    }
}

void FieldBoxes::holdDisplay() {
    for (const auto& [index, text] : texts_)
        text.box->holdDisplay();
    for (const Combo& combo : combos_)
        combo.box->holdDisplay();
    if (owner_) owner_->holdDisplay();
}

void FieldBoxes::showHeld() {
    for (const auto& [index, text] : texts_) {
        if (!comboOver(index)) text.box->showHeld();
    }
    for (const Combo& combo : combos_)
        combo.box->showHeld();
    if (owner_) owner_->showHeld();
}

void FieldBoxes::copyShadows() {
    for (const Combo& combo : combos_) {
        platform::TextControl& shadow = text(combo.shadow);
        if (shadow.text() != combo.box->text()) shadow.setText(combo.box->text());
    }
}

}  // namespace screens
