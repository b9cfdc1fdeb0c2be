#include "platform/forms/text_box.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "platform/base/display_format.h"

namespace platform {

void TextControl::showValue(const QVariant& value, ColumnKind kind, const QString& format) {
    setText(displayText(value, kind, format));
}

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {
    setMaxLength(0);
}

void TextBox::setText(const QString& text) {
    if (held_) {
        held_ = limit_ > 0 ? text.left(limit_) : text;
        return;
    }
    if (text != QLineEdit::text()) QLineEdit::setText(text);
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
    const int size = static_cast<int>(text().size());
    const int from = std::clamp(start, 0, size);
    setSelection(from, std::clamp(length, 0, size - from));
    if (length <= 0) setCursorPosition(from);
}

void TextBox::setSelText(const QString& text) {
    insert(text);
}

}  // namespace platform
