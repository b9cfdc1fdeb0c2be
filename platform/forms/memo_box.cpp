#include "platform/forms/memo_box.h"

#include <QLabel>
#include <QMimeData>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <QtMath>
#include <algorithm>
#include <utility>

#include "platform/forms/box_text.h"
#include "platform/forms/long_text.h"

using namespace Qt::StringLiterals;

namespace platform {

MemoBox::MemoBox(QWidget* parent) : QPlainTextEdit(parent) {
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    setUndoRedoEnabled(true);
    restNote_ = new QLabel(this);
    restNote_->setObjectName(u"qt_restNote"_s);
    restNote_->hide();
    connect(document(), &QTextDocument::contentsChange, this, &MemoBox::beginningChanged);
}

QString MemoBox::text() const {
    return held_ ? *held_ : toPlainText().replace(u'\n', u"\r\n"_s) + rest_;
}

void MemoBox::setText(const QString& text) {
    const QString cut = fitting(text);
    if (held_) {
        held_ = asInMemo(cut);
        return;
    }
    if (cut != this->text()) showBeginning(cut);
    if (textCursor().position() != 0 || textCursor().hasSelection()) moveCursor(QTextCursor::Start);
}

void MemoBox::showBeginning(const QString& text) {
    rest_.clear();
    // By the document: the edit's own way lays the text out three times.
    if (shownLength(text, mostInMemo) == text.size()) {
        document()->setPlainText(text);
    } else {
        const QString whole = asInMemo(text);
        const qsizetype shown = shownLength(whole, mostInMemo);
        document()->setPlainText(whole.first(shown));
        rest_ = whole.sliced(shown);
    }
    tellRest();
}

void MemoBox::beginningChanged(int position, int removed) {
    if (rest_.isEmpty()) return;
    const QString now = toPlainText();
    // The document tells of a change of its looks too.
    if (now == beginning_) return;
    const bool replaced = position == 0 && removed >= beginning_.size();
    if (replaced) rest_.clear();
    tellRest();
    // What an undo brought back would lack its rest.
    if (replaced)
        QMetaObject::invokeMethod(
            document(), [this] { document()->clearUndoRedoStacks(); }, Qt::QueuedConnection);
}

/// A line below the text says what isn't shown.
void MemoBox::tellRest() {
    if (rest_.isEmpty() && beginning_.isEmpty()) return;
    beginning_ = rest_.isEmpty() ? QString() : toPlainText();
    restNote_->setVisible(!rest_.isEmpty());
    restNote_->setText(u"%L1 more characters are kept, but not shown."_s.arg(rest_.size()));
    setViewportMargins(0, 0, 0, rest_.isEmpty() ? 0 : restNote_->sizeHint().height());
    restNote_->setGeometry(frameWidth(), viewport()->geometry().bottom() + 1, width() - 2 * frameWidth(),
                           restNote_->sizeHint().height());
}

void MemoBox::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    restNote_->setGeometry(frameWidth(), viewport()->geometry().bottom() + 1, width() - 2 * frameWidth(),
                           restNote_->sizeHint().height());
}

bool MemoBox::allSelected() const {
    return textCursor().selectionEnd() - textCursor().selectionStart() == document()->characterCount() - 1;
}

QMimeData* MemoBox::createMimeDataFromSelection() const {
    QMimeData* copied = QPlainTextEdit::createMimeDataFromSelection();
    if (!rest_.isEmpty() && allSelected()) copied->setText(text());
    return copied;
}

void MemoBox::showHeld() {
    if (const auto text = std::exchange(held_, std::nullopt)) setText(*text);
}

void MemoBox::setLocked(bool locked) {
    setReadOnly(locked);
    viewport()->setBackgroundRole(locked ? QPalette::Window : QPalette::Base);
    // A read-only box shows no caret and takes no keys otherwise; the text must stay reachable for selecting and
    // copying.
    setTextInteractionFlags(locked ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                   : Qt::TextInteractionFlags(Qt::TextEditorInteraction));
}

qreal MemoBox::lineHeight() const {
    // What the toolkit takes for a line, which is not the font's line spacing.
    QTextLayout sample(u"X"_s, font());
    sample.beginLayout();
    QTextLine line = sample.createLine();
    line.setLineWidth(width());
    sample.endLayout();
    return line.height();
}

int MemoBox::heightOfLines(int lines) const {
    return qCeil(lines * lineHeight() + document()->documentMargin()) + 2 * frameWidth();
}

int MemoBox::wholeLines(int most) const {
    return heightOfLines(static_cast<int>((most - heightOfLines(0)) / lineHeight()));
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
    if (!rest_.isEmpty() && allSelected()) return text();
    return textCursor().selectedText().replace(QChar::ParagraphSeparator, u"\r\n"_s);
}

void MemoBox::setSelText(const QString& text) {
    QTextCursor cursor = textCursor();
    cursor.insertText(text);
    setTextCursor(cursor);
}

}  // namespace platform
