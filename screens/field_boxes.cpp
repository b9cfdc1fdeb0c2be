#include "screens/field_boxes.h"

#include <QLabel>
#include <algorithm>

#include "data/table_definition.h"
#include "data/tables.h"
#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/memo_box.h"
#include "platform/forms/text_box.h"

using namespace Qt::StringLiterals;
using platform::indexedName;

namespace screens {

FieldBoxes::FieldBoxes(QWidget& form, const ScreenDefinition& definition) : definition_(definition) {
    int index = definition.firstBox;
    for (const data::Column& column : data::table(QString(definition.table)).columns) {
        if (column.shownIn == data::ShownIn::Nowhere) continue;
        if (column.kind == data::FieldKind::YesNo) {
            makeCheck(form, column);
        } else {
            makeText(form, index++, column);
        }
    }
    for (const ComboColumn& column : definition.combos) makeCombo(form, column);
}

FieldBoxes::~FieldBoxes() = default;

void FieldBoxes::makeText(QWidget& form, int index, const data::Column& column) {
    Text text;
    if (column.kind == data::FieldKind::LongText) {
        text.box = new platform::MemoBox(&form);
    } else {
        text.box = new platform::TextBox(&form);
    }
    text.box->setName(indexedName(u"txtFields"_s, index));
    text.box->setMaxLength(column.maxLength);
    text.box->widget().setToolTip(column.hint);
    text.label = new QLabel(column.label, &form);
    text.label->setObjectName(indexedName(u"lblLabels"_s, index));
    text.label->setBuddy(&text.box->widget());
    text.box->widget().setAccessibleName(column.label);
    text.column = &column;
    if (column.isStored() && column.shownIn == data::ShownIn::Box) {
        text.binding = std::make_unique<platform::Binding>(*text.box, column.name, column.format);
    }
    texts_.emplace(index, std::move(text));
}

void FieldBoxes::makeCheck(QWidget& form, const data::Column& column) {
    Check check{new platform::CheckBox(&form), nullptr};
    check.box->setName(indexedName(u"chkFields"_s, static_cast<int>(checks_.size())));
    check.box->setText(column.label);
    check.box->setToolTip(column.hint);
    if (column.isStored()) check.binding = std::make_unique<platform::Binding>(*check.box, column.name, column.format);
    checks_.push_back(std::move(check));
}

void FieldBoxes::makeCombo(QWidget& form, const ComboColumn& column) {
    Combo combo{new platform::ComboBox(&form), column, nullptr};
    combo.box->setName(column.combo < 0 ? u"cbFields"_s : indexedName(u"cbFields"_s, column.combo));
    combo.box->setAccessibleName(label(column.shadow));
    combo.binding = std::make_unique<platform::Binding>(*combo.box, column.column, QString(), true);
    const Text& shadow = texts_.at(column.shadow);
    shadow.box->widget().hide();
    shadow.label->setBuddy(combo.box);
    combos_.push_back(std::move(combo));
}

QString FieldBoxes::label(int index) const { return texts_.at(index).label->text(); }

platform::ComboBox* FieldBoxes::comboOver(int box) const {
    const auto found = std::ranges::find_if(combos_, [&](const Combo& combo) { return combo.column.shadow == box; });
    return found == combos_.end() ? nullptr : found->box;
}

bool FieldBoxes::isDate(int box) const {
    return std::ranges::any_of(definition_.dates, [&](const DateColumn& date) { return date.box == box; });
}

void FieldBoxes::bind(platform::RecordSource* rows) {
    for (const auto& [index, text] : texts_) {
        if (!text.binding) continue;
        text.binding->setSource(rows);
        if (isDate(index)) text.binding->setSource(nullptr);
    }
    for (const Check& check : checks_) {
        if (check.binding) check.binding->setSource(rows);
    }
}

void FieldBoxes::bindDates(platform::RecordSource* rows) {
    for (const DateColumn& date : definition_.dates) texts_.at(date.box).binding->setSource(rows);
}

void FieldBoxes::bindCombos(platform::RecordSource* rows) {
    for (const Combo& combo : combos_) combo.binding->setSource(rows);
}

void FieldBoxes::orderTabs() const {
    QWidget* before = nullptr;
    const auto follow = [&before](QWidget* next) {
        if (before) QWidget::setTabOrder(before, next);
        before = next;
    };
    for (const auto& [index, text] : texts_) {
        QWidget* combo = comboOver(index);
        follow(combo ? combo : &text.box->widget());
    }
    for (const Check& check : checks_) follow(check.box);
}

void FieldBoxes::copyShadows() {
    for (const Combo& combo : combos_) {
        platform::TextControl& shadow = text(combo.column.shadow);
        if (shadow.text() != combo.box->text()) shadow.setText(combo.box->text());
    }
}

}  // namespace screens
