#include "platform/forms/table_accessible.h"

#include <QAbstractItemView>
#include <QHeaderView>

#include "platform/forms/form.h"

using namespace Qt::StringLiterals;

namespace platform {

TableAccessible::TableAccessible(QAbstractItemView& view, const QHeaderView& header)
    : QAccessibleWidget(&view, QAccessible::Table), table_{*this, view, header} {}

TableAccessible::~TableAccessible() {
    forgetRows();
}

void TableAccessible::forgetRows() {
    for (const QAccessible::Id row : std::as_const(rows_))
        QAccessible::deleteAccessibleInterface(row);
    rows_.clear();
}

void* TableAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* TableAccessible::child(int index) const {
    if (index < 0 || index >= rowCount()) return nullptr;
    QAccessible::Id& row = rows_[index];
    if (row == 0) row = QAccessible::registerAccessibleInterface(new RowAccessible(table_, index));
    return QAccessible::accessibleInterface(row);
}

int TableAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* part = dynamic_cast<const RowAccessible*>(child);
    return part && part->parent() == this ? part->row() : -1;
}

QAccessibleInterface* TableAccessible::childAt(int x, int y) const {
    return child(table_.view.indexAt(table_.view.viewport()->mapFromGlobal(QPoint(x, y))).row());
}

QAccessibleInterface* TableAccessible::focusChild() const {
    return table_.view.hasFocus() ? child(table_.view.currentIndex().row()) : nullptr;
}

QString TableAccessible::text(QAccessible::Text what) const {
    if (what != QAccessible::Description) {
        const QString own = QAccessibleWidget::text(what);
        const Form* form = Form::of(&table_.view);
        return own.isEmpty() && form && what == QAccessible::Name ? form->caption() : own;
    }
    QStringList captions;
    for (int column = 0; column < columnCount(); ++column)
        captions.append(columnDescription(column));
    return captions.join(u", "_s);
}

QAccessibleInterface* TableAccessible::cellAt(int row, int column) const {
    const QAccessibleInterface* line = child(row);
    return line ? line->child(column) : nullptr;
}

int TableAccessible::selectedCellCount() const {
    return selectedRowCount() * columnCount();
}

QList<QAccessibleInterface*> TableAccessible::selectedCells() const {
    QList<QAccessibleInterface*> cells;
    for (const int row : selectedRows()) {
        for (int column = 0; column < columnCount(); ++column)
            cells.append(cellAt(row, column));
    }
    return cells;
}

QString TableAccessible::columnDescription(int column) const {
    return table_.view.model()->headerData(table_.columns().value(column, -1), Qt::Horizontal).toString();
}

int TableAccessible::selectedRowCount() const {
    return static_cast<int>(selectedRows().size());
}

int TableAccessible::columnCount() const {
    return static_cast<int>(table_.columns().size());
}

int TableAccessible::rowCount() const {
    return table_.view.model() ? table_.view.model()->rowCount() : 0;
}

QList<int> TableAccessible::selectedRows() const {
    QList<int> rows;
    for (const QModelIndex& index : table_.view.selectionModel()->selectedRows())
        rows.append(index.row());
    return rows;
}

bool TableAccessible::isRowSelected(int row) const {
    return table_.view.selectionModel()->isRowSelected(row);
}

bool TableAccessible::selectRow(int row) {
    const QList<int> seen = table_.columns();
    if (row < 0 || row >= rowCount() || seen.isEmpty()) return false;
    table_.view.setCurrentIndex(table_.view.model()->index(row, seen.first()));
    return true;
}

void TableAccessible::modelChange(QAccessibleTableModelChangeEvent* /*event*/) {
    // Whatever stands in a row now, it is another one to the reader.
    forgetRows();
}

void tellCurrentRow(QAbstractItemView& table) {
    const int row = table.currentIndex().row();
    if (!QAccessible::isActive() || !table.hasFocus() || row < 0) return;
    QAccessibleEvent event(&table, QAccessible::Focus);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

void tellCurrentRowSoon(QAbstractItemView& table) {
    QMetaObject::invokeMethod(
        &table, [&table] { tellCurrentRow(table); }, Qt::QueuedConnection);
}

}  // namespace platform
