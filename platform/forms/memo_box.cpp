#include "platform/forms/memo_box.h"

#include <QTextBlock>
#include <QTextCursor>

using namespace Qt::StringLiterals;

namespace platform {

MemoBox::MemoBox(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    setUndoRedoEnabled(true);
}

QString MemoBox::text() const {
    return toPlainText().replace(u'\n', u"\r\n"_s);
}

void MemoBox::setText(const QString& text) {
    const QString cut = limit_ > 0 ? text.left(limit_) : text;
    if (cut != this->text()) setPlainText(cut);
    moveCursor(QTextCursor::Start);
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
