#include "lists/edit_dialog.h"

#include <QFormLayout>
#include <QLabel>
#include <algorithm>

#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/memo_box.h"
#include "platform/forms/text_box.h"

using namespace Qt::StringLiterals;

namespace lists {

namespace {
constexpr int inputWidth = 420;
constexpr int memoHeight = 150;
}  // namespace

EditDialog::EditDialog(platform::Desktop& desktop, const EditForm& form)
    : FormWindow(desktop, form.name, Kind::Dialog), form_(form) {
    setCaption(form.caption);
    auto* rows = new QFormLayout(this);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    rows->setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    for (const EditField& field : form.fields)
        addInput(*rows, field);
    addButtons(*rows);
}

void EditDialog::addInput(QFormLayout& rows, const EditField& field) {
    Input input{field, nullptr, nullptr};
    QWidget* widget = nullptr;
    if (field.kind == EditField::Kind::Combo) {
        input.combo = new platform::ComboBox(this);
        widget = input.combo;
    } else if (field.kind == EditField::Kind::Memo) {
        auto* memo = new platform::MemoBox(this);
        memo->setMinimumHeight(memoHeight);
        input.box = memo;
        widget = memo;
    } else {
        auto* line = new platform::TextBox(this);
        input.box = line;
        widget = line;
    }
    platform::Control::of(widget)->setName(field.name);
    widget->setEnabled(field.enabled);
    widget->setMinimumWidth(inputWidth);
    auto* label = new QLabel(field.label, this);
    label->setBuddy(widget);
    rows.addRow(label, widget);
    inputs_.push_back(input);
}

void EditDialog::addButtons(QFormLayout& rows) {
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    const auto add = [&](const QString& name, const QString& caption, void (EditDialog::*routine)()) {
        auto* button = new platform::CommandButton(this);
        button->setName(name);
        button->setText(caption);
        button->onClick(handler([this, routine] { (this->*routine)(); }));
        row->addWidget(button);
        return button;
    };
    setDefaultButton(add(u"cmdOK"_s, u"&OK"_s, &EditDialog::cmdOK_Click));
    setCancelButton(add(u"cmdCancel"_s, u"&Cancel"_s, &EditDialog::cmdCancel_Click));
    rows.addRow(row);
}

const EditDialog::Input& EditDialog::input(const QString& field) const {
    return *std::ranges::find(inputs_, field, [](const Input& input) { return input.field.name; });
}

platform::ComboBox& EditDialog::combo(const QString& field) const {
    return *input(field).combo;
}

QString EditDialog::text(const QString& field) const {
    const Input& found = input(field);
    return found.combo ? found.combo->text() : found.box->text();
}

void EditDialog::setText(const QString& field, const QString& text) {
    const Input& found = input(field);
    found.combo ? found.combo->setText(text) : found.box->setText(text);
}

void EditDialog::clear() {
    for (const EditField& field : form_.fields)
        setText(field.name, {});
}

void EditDialog::pointAt(const QString& field) {
    const Input& found = input(field);
    if (found.combo) {
        found.combo->selectAll();
        found.combo->setFocus();
    } else {
        found.box->selectAll();
        found.box->widget().setFocus();
    }
}

void EditDialog::cmdOK_Click() {
    if (!accepts()) return;
    success_ = true;
    for (const EditField& field : form_.fields) {
        if (field.ampersands == Ampersands::DoubledInTable) {
            setText(field.name, text(field.name).replace(u" & "_s, u" && "_s));
        }
    }
    hide();
}

void EditDialog::cmdCancel_Click() {
    success_ = false;
    unload();
}

}  // namespace lists
