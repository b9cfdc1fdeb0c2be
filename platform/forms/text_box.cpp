#include "platform/forms/text_box.h"

#include <QEvent>
#include <algorithm>
#include <limits>
#include <utility>

#include "platform/base/display_format.h"
#include "platform/forms/box_text.h"
#include "platform/forms/long_text.h"

namespace platform {

void TextControl::showValue(const QVariant& value, ColumnKind kind, const QString& format) {
    setText(displayText(value, kind, format));
}

QString TextControl::fitting(const QString& text) const {
    return cutToBox(text, maxLength());
}

TextBox::TextBox(QWidget* parent) : LineEdit(parent) {
    setMaxLength(0);
    connect(this, &QLineEdit::textEdited, this, &TextBox::dropHalfCharacter);
    // A change is told before the selection that it replaced is gone.
    connect(this, &QLineEdit::textChanged, this, [this](const QString& now) {
        if (allSelected_ || now.isEmpty()) rest_.clear();
    });
    connect(this, &QLineEdit::selectionChanged, this,
            [this] { allSelected_ = hasSelectedText() && selectionLength() == QLineEdit::text().size(); });
}

void TextBox::dropHalfCharacter() {
    // The line edit cuts what is typed or pasted at its length, also within a character.
    const QString text = QLineEdit::text();
    const int at = cursorPosition();
    if (at == 0 || !text[at - 1].isHighSurrogate()) return;
    if (at == text.size() || !text[at].isLowSurrogate()) backspace();
}

void TextBox::setText(const QString& text) {
    const QString cut = fitting(text);
    if (held_) {
        held_ = cut;
        return;
    }
    if (cut != this->text()) {
        const qsizetype shown = shownLength(cut, mostInLine);
        QLineEdit::setText(cut.first(shown));
        rest_ = cut.sliced(shown);
    }
    if (cursorPosition() != 0 || hasSelectedText()) setCursorPosition(0);
}

void TextBox::showHeld() {
    if (const auto text = std::exchange(held_, std::nullopt)) setText(*text);
}

void TextBox::setMaxLength(int characters) {
    limit_ = characters;
    QLineEdit::setMaxLength(characters > 0 ? characters : std::numeric_limits<int>::max() / 2);
}

int TextBox::selStart() const {
    return hasSelectedText() ? selectionStart() : cursorPosition();
}

void TextBox::select(int start, int length) {
    const int size = static_cast<int>(QLineEdit::text().size());
    const int from = std::clamp(start, 0, size);
    if (from == 0 && length >= size) {
        selectAllFromStart();
        return;
    }
    setSelection(from, std::clamp(length, 0, size - from));
    if (length <= 0) setCursorPosition(from);
}

QString TextBox::selText() const {
    return allSelected_ ? text() : selectedText();
}

bool TextBox::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return LineEdit::event(event);
    showHint(*event, *this, hint());
    return true;
}

void TextBox::setSelText(const QString& text) {
    insert(text);
}

}  // namespace platform
