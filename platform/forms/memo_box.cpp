#include "platform/forms/memo_box.h"

#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// A text as the box gives it back when it has been shown: every line end as CR LF, every blank as the usual one.
QString asRead(QString text) {
    const auto isTurned = [](QChar c) {
        return c == u'\r' || c == u'\n' || c == QChar::Nbsp || c == QChar::ParagraphSeparator ||
               c == QChar::LineSeparator;
    };
    if (std::ranges::none_of(text, isTurned)) return text;
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(QChar::Nbsp, u' ');
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return text.replace(u'\n', u"\r\n"_s);
}

}  // namespace

MemoBox::MemoBox(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    setUndoRedoEnabled(true);
}

QString MemoBox::text() const {
    return held_ ? *held_ : toPlainText().replace(u'\n', u"\r\n"_s);
}

void MemoBox::setText(const QString& text) {
    const QString cut = fitting(text);
    if (held_) {
        held_ = asRead(cut);
        return;
    }
    if (cut != this->text()) setPlainText(cut);
    if (textCursor().position() != 0 || textCursor().hasSelection()) moveCursor(QTextCursor::Start);
}

void MemoBox::showHeld() {
    if (const auto text = std::exchange(held_, std::nullopt)) setText(*text);
}

void MemoBox::setLocked(bool locked) {
    setReadOnly(locked);
    // A read-only box shows no caret and takes no keys otherwise; the text must stay reachable for selecting and
    // copying.
    setTextInteractionFlags(locked ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                   : Qt::TextInteractionFlags(Qt::TextEditorInteraction));
}

int MemoBox::toText(int documentPosition) const {
    return documentPosition + document()->findBlock(documentPosition).blockNumber();
}

int MemoBox::toDocument(int textPosition) const {
    int left = textPosition;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const int characters = block.length() - 1;
        if (left <= characters || !block.next().isValid()) return block.position() + std::min(left, characters);
        left -= characters + 2;
        if (left < 0) return block.position() + characters;
    }
    return 0;
}

int MemoBox::selStart() const {
    return toText(textCursor().selectionStart());
}

int MemoBox::selLength() const {
    return toText(textCursor().selectionEnd()) - selStart();
}

void MemoBox::select(int start, int length) {
    QTextCursor cursor = textCursor();
    cursor.setPosition(toDocument(start));
    cursor.setPosition(toDocument(start + std::max(0, length)), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

QString MemoBox::selText() const {
    return textCursor().selectedText().replace(QChar::ParagraphSeparator, u"\r\n"_s);
}

void MemoBox::setSelText(const QString& text) {
    QTextCursor cursor = textCursor();
    cursor.insertText(text);
    setTextCursor(cursor);
}

}  // namespace platform
