#include "platform/forms/combo_box.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QWheelEvent>
#include <algorithm>
#include <limits>
#include <utility>

#include "platform/base/display_format.h"
#include "platform/base/runtime_error.h"
#include "platform/forms/line_edit.h"
#include "platform/forms/long_text.h"

namespace platform {

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent), line_(new LineEdit(this)) {
    makeEditable();
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(15);
    setMinimumContentsLength(14);
    lineEdit()->setMaxLength(std::numeric_limits<int>::max() / 2);
    // A typed text that reads like an entry isn't a choice of it when the focus goes.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    connect(this, &QComboBox::activated, this, [this](int index) {
        listIndex_ = index;
        long_.clear();
        if (list(index) != currentText()) showText(list(index));
        // The beginning of a chosen entry is in sight, not its end.
        line_->setCursorPosition(0);
        click();
    });
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] {
        listIndex_ = -1;
        long_.clear();
    });
}

void ComboBox::makeEditable() {
    // A line that completes gets no completer of the toolkit's, which takes longer to make than the whole box; this one
    // serves them all, for it goes at once.
    static auto* const passing = new QCompleter(qApp);
    line_->setCompleter(passing);
    setLineEdit(line_);
    setCompleter(nullptr);
}

QSize ComboBox::sizeHint() const {
    // However long the entries are. The toolkit's own policy for that makes the list at once, which few boxes ever
    // open.
    return minimumSizeHint();
}

QString ComboBox::text() const {
    if (held_) return *held_;
    return long_.isEmpty() ? currentText() : long_;
}

void ComboBox::showText(const QString& text) {
    const qsizetype shown = shownLength(text, mostInCombo);
    long_ = shown < text.size() ? text : QString();
    setEditText(text.first(shown));
    lineEdit()->setCursorPosition(0);
}

void ComboBox::click() {
    if (handler_) handler_();
}

void ComboBox::setText(const QString& text) {
    listIndex_ = -1;
    if (held_) {
        held_ = text;
        return;
    }
    const bool stands = text == this->text() && lineEdit()->cursorPosition() == 0 && !lineEdit()->hasSelectedText();
    if (stands && (text.isEmpty() ? currentIndex() < 0 : list(currentIndex()) == text)) return;
    const QSignalBlocker quiet(this);
    // The arrow keys go on from the entry that reads like the text.
    setCurrentIndex(static_cast<int>(entries_.indexOf(text)));
    showText(text);
}

void ComboBox::showHeld() {
    if (const auto text = std::exchange(held_, std::nullopt)) setText(*text);
}

void ComboBox::setListIndex(int index) {
    if (count() == 0 && index == 0) return;
    if (index < -1 || index >= count()) throw RuntimeError(Error::InvalidValue);
    // A text that is no choice goes, though it has no entry to give up.
    const bool isOther = index != listIndex_;
    if (!isOther && index >= 0) return;
    {
        const QSignalBlocker quiet(this);
        listIndex_ = index;
        setCurrentIndex(index);
        showText(list(index));
    }
    if (isOther) click();
}

void ComboBox::addItems(const QStringList& texts) {
    const QSignalBlocker quiet(this);
    const QString kept = currentText();
    entries_ += texts;
    for (const QString& text : texts)
        QComboBox::addItem(text.first(shownLength(text, mostInCombo)));
    // The first entry of a list would choose itself.
    if (listIndex_ < 0) {
        setCurrentIndex(-1);
        setEditText(kept);
    }
}

void ComboBox::removeEntry(int index) {
    if (index < 0 || index >= count()) throw RuntimeError(Error::InvalidCall);
    const QSignalBlocker quiet(this);
    const QString kept = index == listIndex_ ? QString() : this->text();
    if (index == listIndex_) {
        listIndex_ = -1;
    } else if (index < listIndex_) {
        --listIndex_;
    }
    entries_.removeAt(index);
    removeItem(index);
    setCurrentIndex(listIndex_);
    showText(kept);
}

void ComboBox::clearList() {
    const QSignalBlocker quiet(this);
    listIndex_ = -1;
    entries_.clear();
    clear();
    showText({});
}

void ComboBox::setLocked(bool locked) {
    locked_ = locked;
    lineEdit()->setReadOnly(locked);
}

void ComboBox::setListOnly() {
    lineEdit()->setReadOnly(true);
    lineEdit()->installEventFilter(this);
}

bool ComboBox::eventFilter(QObject* watched, QEvent* event) {
    if (watched != lineEdit() || event->type() != QEvent::MouseButtonPress)
        return QComboBox::eventFilter(watched, event);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QPoint arrow = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this).center();
    const auto& press = static_cast<const QMouseEvent&>(*event);
    QMouseEvent onArrow(press.type(), arrow, press.globalPosition(), press.button(), press.buttons(),
                        press.modifiers());
    mousePressEvent(&onArrow);
    return true;
}

void ComboBox::selectAll() {
    line_->selectAllFromStart();
}

int ComboBox::selStart() const {
    return lineEdit()->hasSelectedText() ? lineEdit()->selectionStart() : lineEdit()->cursorPosition();
}

int ComboBox::selLength() const {
    return lineEdit()->selectionLength();
}

void ComboBox::showValue(const QVariant& value, ColumnKind kind, const QString& format) {
    setText(displayText(value, kind, format));
}

void ComboBox::showPopup() {
    if (locked_) return;
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(i)));
    const int beside = view()->verticalScrollBar()->sizeHint().width() + 2 * fontMetrics().averageCharWidth();
    view()->setMinimumWidth(widest + beside);
    QComboBox::showPopup();
}

int ComboBox::widthFor(int textPixels) {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize text(line_->widthFor(textPixels), fontMetrics().height());
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this).width();
}

QString ComboBox::hint() {
    return toolTip().isEmpty() ? line_->cutText() : toolTip();
}

void ComboBox::setSpokenName(const QString& name) {
    setAccessibleName(name);
    line_->setAccessibleName(name);
}

bool ComboBox::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QComboBox::event(event);
    showHint(*event, *this, hint());
    return true;
}

void ComboBox::initStyleOption(QStyleOptionComboBox* option) const {
    QComboBox::initStyleOption(option);
    if (locked_) option->palette.setBrush(QPalette::Base, option->palette.window());
}

void ComboBox::wheelEvent(QWheelEvent* event) {
    // Scrolling a page must not change what a record says.
    event->ignore();
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
    const bool chooses = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down || event->key() == Qt::Key_PageUp ||
                         event->key() == Qt::Key_PageDown || event->key() == Qt::Key_F4;
    if (locked_ && chooses) {
        event->accept();
        return;
    }
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enters && enter_) {
        enter_();
        event->accept();
        return;
    }
    const QString before = currentText();
    QComboBox::keyPressEvent(event);
    const bool writes = !event->text().isEmpty() && event->text().front().isPrint();
    if (completes_ && writes && currentText() != before) complete();
}

void ComboBox::complete() {
    const auto typed = static_cast<int>(currentText().size());
    if (line_->cursorPosition() < typed) return;
    const int entry = findText(currentText(), Qt::MatchStartsWith);
    if (entry < 0) return;
    const QSignalBlocker quiet(this);
    setCurrentIndex(entry);
    setEditText(itemText(entry));
    line_->setSelection(typed, line_->maxLength());
}

}  // namespace platform
