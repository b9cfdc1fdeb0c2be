#pragma once

#include <QStyledItemDelegate>

namespace platform {

/// Draws a cell's text in as many whole lines as its row has room for, with an ellipsis where there is more.
class GridDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace platform
