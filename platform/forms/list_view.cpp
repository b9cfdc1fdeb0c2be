#include "platform/forms/list_view.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>

#include "platform/base/runtime_error.h"
#include "platform/forms/grid_delegate.h"
#include "platform/forms/table_accessible.h"

namespace platform {

ListView::ListView(const QList<Header>& headers, QWidget* parent) : QTreeWidget(parent) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setExpandsOnDoubleClick(false);
    setItemDelegate(new ItemDelegate(this));
    header()->setStretchLastSection(false);
    setColumnCount(static_cast<int>(headers.size()));
    for (int column = 0; column < columnCount(); ++column) {
        headerItem()->setText(column, headers[column].text);
        if (headers[column].characters == 0) {
            header()->setSectionResizeMode(column, QHeaderView::Stretch);
        } else {
            setColumnWidth(column, headers[column].characters * fontMetrics().averageCharWidth());
        }
    }
}

void ListView::add(const QStringList& texts) {
    auto* item = new QTreeWidgetItem(this, texts);
    for (int column = 0; column < texts.size(); ++column)
        item->setToolTip(column, texts[column]);
    if (count() == 1) setCurrentItem(item);
}

int ListView::find(int column, const QString& text) const {
    for (int row = 0; row < count(); ++row) {
        if (topLevelItem(row)->text(column) == text) return row;
    }
    return -1;
}

void ListView::selectItem(int row) {
    if (QTreeWidgetItem* item = topLevelItem(row)) setCurrentItem(item);
}

QString ListView::selectedText(int column) const {
    if (!currentItem()) throw RuntimeError(Error::ObjectNotSet);
    return currentItem()->text(column);
}

void ListView::focusInEvent(QFocusEvent* event) {
    QTreeWidget::focusInEvent(event);
    tellCurrentRowSoon(*this);
}

void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // A screen reader hears of the row, where the tree would speak of one cell; the focus is drawn over the whole row.
    QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
    viewport()->update();
    if (current.row() != previous.row()) tellCurrentRow(*this);
}

void ListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QAbstractItemView::selectionChanged(selected, deselected);  // NOLINT(bugprone-parent-virtual-call)
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && doubleClicked_) doubleClicked_();
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton && popup_) popup_->popup(event->globalPosition().toPoint());
}

void ListView::contextMenuEvent(QContextMenuEvent* event) {
    // The mouse brings the menu up when its button is let go; here it is the keyboard's menu key.
    if (event->reason() != QContextMenuEvent::Keyboard || !popup_) return;
    popup_->popup(viewport()->mapToGlobal(visualItemRect(currentItem()).bottomLeft()));
}

QItemSelectionModel::SelectionFlags ListView::selectionCommand(const QModelIndex& index, const QEvent* event) const {
    // A click with Ctrl would take the highlight off the item that the buttons still act on.
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    if (!event) return QTreeWidget::selectionCommand(index, event);
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

}  // namespace platform
