#include "lists/edit_dialog.h"

#include <QFormLayout>
#include <QLabel>
#include <algorithm>

#include "platform/forms/combo_box.h"
#include "platform/forms/dialog_buttons.h"
#include "platform/forms/memo_box.h"
#include "platform/forms/text_box.h"

using namespace Qt::StringLiterals;

namespace lists {

namespace {
constexpr int inputCharacters = 62;
constexpr int memoLines = 9;
}  // namespace

EditDialog::EditDialog(platform::Desktop& desktop, const EditForm& form)
    : FormWindow(desktop, form.name, Kind::Dialog), form_(form) {
    setCaption(form.caption);
    auto* rows = new QFormLayout(this);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    rows->setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    for (const EditField& field : form.fields)
        addInput(*rows, field);
    rows->addRow(
        platform::dialogButtons(*this, handler([this] { cmdOK_Click(); }), handler([this] { cmdCancel_Click(); })));
}

void EditDialog::addInput(QFormLayout& rows, const EditField& field) {
    Input input{field, nullptr, nullptr};
    QWidget* widget = nullptr;
    if (field.kind == EditField::Kind::Combo) {
        input.combo = new platform::ComboBox(this);
        widget = input.combo;
    } else if (field.kind == EditField::Kind::Memo) {
        auto* memo = new platform::MemoBox(this);
        memo->setMinimumHeight(memo->heightOfLines(memoLines));
        input.box = memo;
        widget = memo;
    } else {
        auto* line = new platform::TextBox(this);
        input.box = line;
        widget = line;
    }
    platform::Control::of(widget)->setName(field.name);
    platform::Control::of(widget)->setSpokenName(field.label);
    widget->setEnabled(field.enabled);
    widget->setMinimumWidth(fontMetrics().averageCharWidth() * inputCharacters);
    auto* label = new QLabel(field.label, this);
    label->setBuddy(widget);
    rows.addRow(label, widget);
    inputs_.push_back(input);
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

QString EditDialog::storedText(const QString& field) const {
    QString stored = text(field);
    if (input(field).field.ampersands == Ampersands::DoubledInTable) stored.replace(u" & "_s, u" && "_s);
    return stored;
}

void EditDialog::setText(const QString& field, const QString& text) {
    const Input& found = input(field);
    found.combo ? found.combo->setText(text) : found.box->setText(text);
}

void EditDialog::clear() {
    for (const EditField& field : form_.fields)
        setText(field.name, {});
}

void EditDialog::initScreen() {
    if (!form_.selected.isEmpty()) pointAt(form_.selected);
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

bool EditDialog::run() {
    success_ = false;
    showModal();
    return success_;
}

void EditDialog::cmdOK_Click() {
    if (!accepts()) return;
    success_ = true;
    hide();
}

void EditDialog::cmdCancel_Click() {
    success_ = false;
    unload();
}

}  // namespace lists
