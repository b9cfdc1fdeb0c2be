#include "platform/forms/line_edit.h"

#include <QFocusEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>

namespace platform {

namespace {
/// What the toolkit leaves free at either side of a line's text.
constexpr int innerMargin = 2;
}  // namespace

QRect LineEdit::textRect() const {
    QStyleOptionFrame panel;
    initStyleOption(&panel);
    const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &panel, this);
    return inside.marginsRemoved(textMargins()).adjusted(innerMargin, 0, -innerMargin, 0);
}

QString LineEdit::cutText() const {
    if (echoMode() != Normal) return {};
    return fontMetrics().horizontalAdvance(text()) > textRect().width() ? text() : QString();
}

int LineEdit::widthFor(int textPixels) const {
    QStyleOptionFrame panel;
    initStyleOption(&panel);
    const QSize text(textPixels + 2 * innerMargin, fontMetrics().height());
    return style()->sizeFromContents(QStyle::CT_LineEdit, &panel, text, this).width();
}

void LineEdit::paintEvent(QPaintEvent* event) {
    const QString whole = hasFocus() ? QString() : cutText();
    if (whole.isEmpty()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOptionFrame panel;
    initStyleOption(&panel);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &panel, &painter, this);
    const QRect room = textRect();
    painter.setPen(panel.palette.color(QPalette::Text));
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(whole, Qt::ElideRight, room.width()));
}

void LineEdit::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    const bool byTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byTab && selectionLength() > 0) selectAllFromStart();
}

void LineEdit::focusOutEvent(QFocusEvent* event) {
    if (event->reason() != Qt::MenuBarFocusReason) return QLineEdit::focusOutEvent(event);
    // A menu that is reached by the keyboard copies the selection just as one that the mouse opens.
    QFocusEvent asByMouse(event->type(), Qt::PopupFocusReason);
    QLineEdit::focusOutEvent(&asByMouse);
}

void LineEdit::initStyleOption(QStyleOptionFrame* option) const {
    QLineEdit::initStyleOption(option);
    if (isReadOnly()) option->palette.setBrush(QPalette::Base, option->palette.window());
}

void showHint(const QEvent& helpEvent, QWidget& widget, const QString& hint) {
    QToolTip::showText(static_cast<const QHelpEvent&>(helpEvent).globalPos(), hint, &widget);
}

}  // namespace platform
