#include "tests/support/description.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QInputDialog>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTableView>
#include <QTextEdit>
#include <QToolBar>
#include <QTreeView>

#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form.h"
#include "platform/forms/form_window.h"
#include "platform/forms/mdi_frame.h"
#include "platform/forms/text_control.h"
#include "platform/forms/tree_view.h"
#include "session/session.h"
#include "tests/support/finder.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

QString iconName(QMessageBox::Icon icon) {
    switch (icon) {
        case QMessageBox::Information:
            return u"information"_s;
        case QMessageBox::Question:
            return u"question"_s;
        case QMessageBox::Critical:
            return u"critical"_s;
        case QMessageBox::Warning:
            return u"warning"_s;
        default:
            return u"none"_s;
    }
}

QJsonArray captions(const QList<QAbstractButton*>& buttons) {
    QJsonArray texts;
    for (const QAbstractButton* button : buttons)
        texts.append(plainCaption(button->text()));
    return texts;
}

QJsonObject describeMessage(const QMessageBox& box) {
    return {{u"kind"_s, u"message"_s},
            {u"text"_s, box.text()},
            {u"icon"_s, iconName(box.icon())},
            {u"buttons"_s, captions(box.buttons())}};
}

QJsonObject describeFileDialog(const QFileDialog& dialog) {
    const auto* name = dialog.findChild<QLineEdit*>(u"fileNameEdit"_s);
    const bool opens = dialog.acceptMode() == QFileDialog::AcceptOpen;
    return {{u"kind"_s, u"file"_s},
            {u"mode"_s, opens ? u"open"_s : u"save"_s},
            {u"folder"_s, dialog.directory().absolutePath()},
            {u"filter"_s, dialog.selectedNameFilter()},
            {u"suffix"_s, dialog.defaultSuffix()},
            {u"file"_s, name ? name->text() : QString()}};
}

QJsonObject describeInputBox(const QInputDialog& dialog) {
    return {{u"kind"_s, u"input"_s}, {u"text"_s, dialog.labelText()}, {u"value"_s, dialog.textValue()}};
}

QString frameOf(const QWidget& control) {
    for (const QWidget* around = control.parentWidget(); around; around = around->parentWidget()) {
        if (const auto* frame = qobject_cast<const QGroupBox*>(around)) return frame->title();
        if (around->isWindow()) break;
    }
    return {};
}

/// The caption beside a box: that of the label with its index, or of the label that leads to it.
QString labelOf(const QWidget& control) {
    platform::Form* form = platform::Form::of(const_cast<QWidget*>(&control));
    if (!form) return {};
    const QString index = control.objectName().startsWith(u"txtFields("_s) ? control.objectName().mid(9) : QString();
    const auto labels = form->window().findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (!index.isEmpty() ? label->objectName() == u"lblLabels"_s + index : label->buddy() == &control) {
            return label->text();
        }
    }
    return {};
}

QString typeOf(const QWidget& control) {
    if (dynamic_cast<const platform::TextControl*>(&control)) return u"TextBox"_s;
    if (qobject_cast<const QComboBox*>(&control)) return u"ComboBox"_s;
    if (qobject_cast<const QCheckBox*>(&control)) return u"CheckBox"_s;
    if (qobject_cast<const QAbstractButton*>(&control)) return u"CommandButton"_s;
    if (qobject_cast<const QLabel*>(&control)) return u"Label"_s;
    if (qobject_cast<const QGroupBox*>(&control)) return u"Frame"_s;
    if (qobject_cast<const QToolBar*>(&control)) return u"Toolbar"_s;
    if (dynamic_cast<const platform::TreeView*>(&control)) return u"TreeView"_s;
    if (qobject_cast<const QTableView*>(&control)) return u"Grid"_s;
    if (qobject_cast<const QAbstractItemView*>(&control)) return u"List"_s;
    return QString::fromLatin1(control.metaObject()->className()).section(u"::"_s, -1);
}

QString textOf(const QWidget& control) {
    if (const auto* box = dynamic_cast<const platform::TextControl*>(&control)) return box->text();
    if (const auto* combo = qobject_cast<const QComboBox*>(&control)) return combo->currentText();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
    if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
    if (const auto* frame = qobject_cast<const QGroupBox*>(&control)) return frame->title();
    if (const auto* text = qobject_cast<const QTextEdit*>(&control)) return text->toPlainText();
    if (const auto* line = qobject_cast<const QLineEdit*>(&control)) return line->text();
    return {};
}

/// What every control and every entry has, at its standing value where it has no such thing.
QJsonObject plainControl(const QString& name, const QString& type, const QString& text) {
    return {{u"name"_s, name},       {u"type"_s, type},      {u"text"_s, text},   {u"locked"_s, false},
            {u"maxLength"_s, 0},     {u"selStart"_s, 0},     {u"selLength"_s, 0}, {u"masked"_s, false},
            {u"label"_s, QString()}, {u"frame"_s, QString()}};
}

void addText(QJsonObject& seen, const platform::TextControl& box) {
    seen[u"locked"_s] = box.isLocked();
    seen[u"maxLength"_s] = box.maxLength();
    seen[u"selStart"_s] = box.selStart();
    seen[u"selLength"_s] = box.selLength();
}

void addCombo(QJsonObject& seen, const QComboBox& combo) {
    QJsonArray items;
    for (int i = 0; i < combo.count(); ++i)
        items.append(combo.itemText(i));
    seen[u"items"_s] = items;
    if (const auto* box = dynamic_cast<const platform::ComboBox*>(&combo)) {
        seen[u"locked"_s] = box->isLocked();
        seen[u"selStart"_s] = box->selStart();
        seen[u"selLength"_s] = box->selLength();
    }
}

QString cell(const QAbstractItemModel& model, int row, int column) {
    return model.data(model.index(row, column)).toString();
}

void addList(QJsonObject& seen, const QAbstractItemView& view) {
    QJsonArray items;
    const QAbstractItemModel* model = view.model();
    for (int row = 0; model && row < model->rowCount(); ++row)
        items.append(cell(*model, row, 0));
    seen[u"items"_s] = items;
}

int columnWidth(const QAbstractItemView& view, int column) {
    if (const auto* table = qobject_cast<const QTableView*>(&view)) return table->columnWidth(column);
    if (const auto* tree = qobject_cast<const QTreeView*>(&view)) return tree->columnWidth(column);
    return view.viewport()->width();
}

QString focusName() {
    QWidget* focus = QApplication::focusWidget();
    if (!platform::Form::of(focus)) return {};
    if (platform::Control* control = platform::Control::of(focus)) return control->name();
    return focus->objectName();
}

QJsonValue nullIfEmpty(const QString& text) {
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

}  // namespace

QString plainCaption(const QString& caption) {
    QString plain;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption.at(i) == u'&' && i + 1 < caption.size()) ++i;
        plain += caption.at(i);
    }
    return plain;
}

QJsonValue describeDialog() {
    QWidget* window = QApplication::activeModalWidget();
    if (!window) return {};
    QJsonObject seen;
    QString name = window->objectName();
    QString title = window->windowTitle();
    if (auto* form = dynamic_cast<platform::Form*>(window)) {
        seen[u"kind"_s] = u"form"_s;
        name = form->name();
        title = form->caption();
    } else if (const auto* message = qobject_cast<QMessageBox*>(window)) {
        seen = describeMessage(*message);
    } else if (const auto* file = qobject_cast<QFileDialog*>(window)) {
        seen = describeFileDialog(*file);
    } else if (const auto* input = qobject_cast<QInputDialog*>(window)) {
        seen = describeInputBox(*input);
    }
    seen[u"name"_s] = name;
    seen[u"title"_s] = title;
    return seen;
}

QJsonObject describeDesktop(const platform::Desktop& desktop) {
    QJsonArray forms;
    for (int i = 0; i < desktop.count(); ++i)
        forms.append(desktop.at(i).name());
    const platform::Form* active = desktop.host() ? desktop.host()->activeForm() : nullptr;
    return {{u"dialog"_s, describeDialog()},
            {u"active"_s, active ? QJsonValue(active->name()) : QJsonValue()},
            {u"forms"_s, forms},
            {u"focus"_s, nullIfEmpty(focusName())},
            {u"pointer"_s, desktop.pointer() == platform::Pointer::Hourglass ? u"hourglass"_s : u"normal"_s}};
}

QJsonObject describeSession(const session::Session& session) {
    return {{u"gsPersonName"_s, session.gsPersonName},     {u"gPersonID"_s, session.gPersonID},
            {u"gbWholeFamily"_s, session.gbWholeFamily},   {u"gbCanEdit"_s, session.gbCanEdit},
            {u"gvAttachKey"_s, session.gvAttachKey},       {u"gsDatabaseName"_s, session.gsDatabaseName},
            {u"gsDatabasePath"_s, session.gsDatabasePath}, {u"gbAddMember"_s, session.gbAddMember},
            {u"gbHelpOpened"_s, session.gbHelpOpened}};
}

QJsonObject describeForm(platform::Form& form) {
    QJsonArray controls;
    for (QWidget* control : Finder::controls(form))
        controls.append(describeControl(*control));
    for (const QAction* action : Finder::actions(form))
        controls.append(describeAction(*action));
    return {{u"name"_s, form.name()}, {u"caption"_s, form.caption()}, {u"controls"_s, controls}};
}

QJsonObject describeControl(QWidget& control) {
    QJsonObject seen = plainControl(control.objectName(), typeOf(control), textOf(control));
    if (const auto* box = dynamic_cast<const platform::TextControl*>(&control)) addText(seen, *box);
    if (const auto* check = dynamic_cast<const platform::CheckBox*>(&control)) seen[u"value"_s] = check->value();
    if (const auto* combo = qobject_cast<const QComboBox*>(&control)) addCombo(seen, *combo);
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&control)) addList(seen, *view);
    if (const auto* line = qobject_cast<const QLineEdit*>(&control)) {
        seen[u"masked"_s] = line->echoMode() != QLineEdit::Normal;
    }
    seen[u"visible"_s] = control.isVisible();
    seen[u"enabled"_s] = control.isEnabled();
    auto* known = dynamic_cast<platform::Control*>(&control);
    seen[u"tooltip"_s] = known ? known->hint() : control.toolTip();
    seen[u"label"_s] = labelOf(control);
    seen[u"frame"_s] = frameOf(control);
    return seen;
}

QJsonObject describeAction(const QAction& action) {
    const auto places = action.associatedObjects();
    const bool isKey = std::ranges::any_of(places, [](QObject* place) { return qobject_cast<QToolBar*>(place); });
    QJsonObject seen = plainControl(action.objectName(), isKey ? u"ToolButton"_s : u"Menu"_s, action.text());
    seen[u"visible"_s] = action.isVisible();
    seen[u"enabled"_s] = action.isEnabled();
    seen[u"tooltip"_s] = isKey ? action.toolTip() : QString();
    return seen;
}

QJsonObject describeTree(const platform::TreeView& tree) {
    QJsonArray nodes;
    for (int index = 1; index <= tree.nodeCount(); ++index) {
        nodes.append(QJsonObject{{u"index"_s, index},
                                 {u"key"_s, tree.key(index)},
                                 {u"text"_s, tree.text(index)},
                                 {u"parent"_s, tree.parentIndex(index)},
                                 {u"image"_s, tree.image(index)},
                                 {u"expanded"_s, tree.expanded(index)},
                                 {u"selected"_s, tree.selected(index)}});
    }
    return {{u"enabled"_s, tree.isEnabled()}, {u"nodes"_s, nodes}};
}

QJsonObject describeView(const QAbstractItemView& view) {
    const QAbstractItemModel* model = view.model();
    QJsonArray columns;
    QJsonArray rows;
    for (int column = 0; model && column < model->columnCount(); ++column) {
        columns.append(QJsonObject{{u"name"_s, model->headerData(column, Qt::Horizontal).toString()},
                                   {u"width"_s, columnWidth(view, column)}});
    }
    for (int row = 0; model && row < model->rowCount(); ++row) {
        QJsonArray cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells.append(cell(*model, row, column));
        rows.append(cells);
    }
    return {{u"columns"_s, columns}, {u"rows"_s, rows}, {u"current"_s, view.currentIndex().row()}};
}

}  // namespace support
