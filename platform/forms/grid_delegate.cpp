#include "platform/forms/grid_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>

#include "platform/forms/long_text.h"

namespace platform {

namespace {

constexpr int sideMargin = 3;
constexpr QChar ellipsis(0x2026);

/// The text broken between words into lines of a width, `most` of them at the most; each is cut to the width.
QStringList wrapped(const QString& text, const QFont& font, int width, int most) {
    QStringList lines;
    const QFontMetrics metrics(font);
    for (const QString& paragraph : text.split(u'\n')) {
        QTextLayout layout(paragraph, font);
        layout.setTextOption(QTextOption(Qt::AlignLeft));
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            if (lines.size() == most) {
                lines.last() = metrics.elidedText(lines.last().trimmed() + ellipsis, Qt::ElideRight, width);
                return lines;
            }
            lines.append(metrics.elidedText(paragraph.mid(line.textStart(), line.textLength()).trimmed(),
                                            Qt::ElideRight, width));
        }
        layout.endLayout();
    }
    return lines;
}

/// Draws one line whole, narrower where the room is.
void drawWhole(QPainter& painter, const QRect& room, const QString& text) {
    const int width = painter.fontMetrics().horizontalAdvance(text);
    painter.translate(room.topLeft());
    if (width > room.width()) painter.scale(qreal(room.width()) / width, 1);
    painter.drawText(QRect(0, 0, std::max(width, room.width()), room.height()), Qt::AlignLeft | Qt::AlignTop, text);
}

}  // namespace

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.state |= QStyle::State_Active;
    cell.text.clear();
    const QString whole = index.data(Qt::DisplayRole).toString();
    const QString text = whole.first(shownLength(whole, mostInCell)).remove(u'\r');
    const QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    if (text.isEmpty()) return;

    const int spacing = cell.fontMetrics.lineSpacing();
    const int most = std::max(1, cell.rect.height() / spacing);
    const int top = cell.rect.top() + (cell.rect.height() - most * spacing) / 2;
    const QRect room(cell.rect.left() + sideMargin, top, std::max(1, cell.rect.width() - 2 * sideMargin),
                     most * spacing);
    const bool selected = cell.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setFont(cell.font);
    painter->setPen(cell.palette.color(QPalette::Active, selected ? QPalette::HighlightedText : QPalette::Text));
    if (index.data(dateRole).toBool()) {
        drawWhole(*painter, room, text);
    } else {
        // A line end makes each of them a line of its own, whatever the width.
        painter->drawText(room, Qt::AlignLeft | Qt::AlignTop, wrapped(text, cell.font, room.width(), most).join(u'\n'));
    }
    painter->restore();
}

void ItemDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state |= QStyle::State_Active;
}

}  // namespace platform
