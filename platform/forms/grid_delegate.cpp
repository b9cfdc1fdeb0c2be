#include "platform/forms/grid_delegate.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>

#include "platform/forms/long_text.h"

namespace platform {

namespace {

constexpr int sideMargin = 3;

/// The text broken into lines of a width, `most` of them at the most.
QStringList wrapped(const QString& text, const QFont& font, int width, int most) {
    QStringList lines;
    const QFontMetrics metrics(font);
    for (const QString& paragraph : text.split(u'\n')) {
        QTextLayout layout(paragraph, font);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            if (lines.size() == most) {
                lines.last() = metrics.elidedText(lines.last() + QChar(0x2026), Qt::ElideRight, width);
                return lines;
            }
            lines.append(paragraph.mid(line.textStart(), line.textLength()));
        }
        layout.endLayout();
    }
    return lines;
}

}  // namespace

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.text.clear();
    const QString whole = index.data(Qt::DisplayRole).toString();
    const QString text = whole.first(shownLength(whole, mostInCell)).remove(u'\r');
    const QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    if (text.isEmpty()) return;

    const int spacing = cell.fontMetrics.lineSpacing();
    const int most = std::max(1, cell.rect.height() / spacing);
    const int top = cell.rect.top() + (cell.rect.height() - most * spacing) / 2;
    const QRect room(cell.rect.left() + sideMargin, top, cell.rect.width() - 2 * sideMargin, most * spacing);
    const bool selected = cell.state.testFlag(QStyle::State_Selected);
    const auto group = cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setFont(cell.font);
    painter->setPen(cell.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    // A line end makes each of them a line of its own, whatever the width.
    painter->drawText(room, Qt::AlignLeft | Qt::AlignTop, wrapped(text, cell.font, room.width(), most).join(u'\n'));
    painter->restore();
}

}  // namespace platform
