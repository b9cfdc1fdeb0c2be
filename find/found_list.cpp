#include "find/found_list.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <array>

#include "platform/forms/grid_delegate.h"

namespace find {

namespace {
/// Of the list's width, by columns; the last one takes the rest.
constexpr std::array shares{0.2, 0.17, 0.19};
}  // namespace

FoundList::FoundList(QWidget* parent) : QTreeView(parent) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(SingleSelection);
    setAlternatingRowColors(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegate(new platform::ItemDelegate(this));
    header()->setStretchLastSection(true);
}

void FoundList::setModel(QAbstractItemModel* model) {
    QTreeView::setModel(model);
    spreadColumns();
}

void FoundList::spreadColumns() {
    for (std::size_t column = 0; column < shares.size(); ++column)
        setColumnWidth(static_cast<int>(column), static_cast<int>(viewport()->width() * shares.at(column)));
}

void FoundList::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    spreadColumns();
}

void FoundList::reset() {
    QTreeView::reset();
    untouched_ = true;
}

void FoundList::rowsInserted(const QModelIndex& parent, int start, int end) {
    QTreeView::rowsInserted(parent, start, end);
    // What comes first comes in later, too.
    if (untouched_) setCurrentIndex(model()->index(0, 0));
}

void FoundList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Up && selectedRow() <= 0) {
        if (leftUpwards_) leftUpwards_();
        return;
    }
    untouched_ = false;
    QTreeView::keyPressEvent(event);
}

void FoundList::mousePressEvent(QMouseEvent* event) {
    untouched_ = false;
    QTreeView::mousePressEvent(event);
}

void FoundList::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && doubleClicked_ && indexAt(event->pos()).isValid()) doubleClicked_();
}

QItemSelectionModel::SelectionFlags FoundList::selectionCommand(const QModelIndex& index, const QEvent* event) const {
    // A click with Ctrl would take the highlight off the line that the button still acts on.
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    if (!event) return QTreeView::selectionCommand(index, event);
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

}  // namespace find
