#pragma once

#include <QStyledItemDelegate>

namespace platform {

/// Draws a cell's text in as many whole lines as its row has room for, with an ellipsis where a line is wider than the
/// column or there are more lines. A date is never broken or cut: it is drawn narrower instead. The selected row has
/// the same colour whether the view has the focus or not.
class GridDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// The model's role that tells a date: its whole text stays in one line.
    static constexpr int dateRole = Qt::UserRole;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

/// Draws items as the style does, the selected one in the same colour whether the view has the focus or not.
class ItemDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace platform
