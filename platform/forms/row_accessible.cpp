#include "platform/forms/row_accessible.h"

#include <QAbstractItemView>
#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace platform {

QList<int> AccountedTable::columns() const {
    QList<int> seen;
    for (int column = 0; column < header.count(); ++column) {
        if (!header.isSectionHidden(column)) seen.append(column);
    }
    return seen;
}

// What both have in common -----------------------------------------------------------------------------------------

bool TablePart::isValid() const {
    return table_.account.isValid() && row_ < table_.account.childCount();
}

QWindow* TablePart::window() const {
    return table_.account.window();
}

QAccessibleInterface* TablePart::childAt(int x, int y) const {
    for (int i = 0; i < childCount(); ++i) {
        if (child(i)->rect().contains(x, y)) return child(i);
    }
    return nullptr;
}

QAccessible::State TablePart::state() const {
    QAccessible::State state;
    const QAccessible::State around = table_.account.state();
    state.disabled = around.disabled;
    state.invisible = around.invisible;
    state.selectable = true;
    state.selected = table_.account.tableInterface()->isRowSelected(row_);
    const QWidget& viewport = *table_.view.viewport();
    state.offscreen = !rect().intersects({viewport.mapToGlobal(QPoint()), viewport.size()});
    if (state.offscreen) state.invisible = true;
    return state;
}

QModelIndex TablePart::index(int column) const {
    return table_.view.model()->index(row_, table_.columns().value(column, -1));
}

QRect TablePart::place(int column) const {
    const QRect within = table_.view.visualRect(index(column));
    return {table_.view.viewport()->mapToGlobal(within.topLeft()), within.size()};
}

// A cell -----------------------------------------------------------------------------------------------------------

CellAccessible::CellAccessible(RowAccessible& parent, int column)
    : TablePart(parent.owner(), parent.row()), parent_(parent), column_(column) {}

void* CellAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this) : nullptr;
}

QAccessibleInterface* CellAccessible::parent() const {
    return &parent_;
}

QString CellAccessible::text(QAccessible::Text what) const {
    if (what == QAccessible::Description) return owner().account.tableInterface()->columnDescription(column_);
    return what == QAccessible::Name ? index(column_).data().toString() : QString();
}

// A row ------------------------------------------------------------------------------------------------------------

RowAccessible::~RowAccessible() {
    for (const QAccessible::Id cell : std::as_const(cells_))
        QAccessible::deleteAccessibleInterface(cell);
}

QAccessibleInterface* RowAccessible::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    QAccessible::Id& cell = cells_[index];
    if (cell == 0)
        cell = QAccessible::registerAccessibleInterface(new CellAccessible(const_cast<RowAccessible&>(*this), index));
    return QAccessible::accessibleInterface(cell);
}

int RowAccessible::childCount() const {
    return static_cast<int>(owner().columns().size());
}

int RowAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* cell = dynamic_cast<const CellAccessible*>(child);
    return cell && cell->row() == row() ? cell->columnIndex() : -1;
}

QString RowAccessible::text(QAccessible::Text what) const {
    if (what != QAccessible::Name) return {};
    QStringList texts;
    for (int column = 0; column < childCount(); ++column)
        texts.append(index(column).data().toString().simplified());
    texts.removeAll(QString());
    return texts.join(u", "_s);
}

QRect RowAccessible::rect() const {
    return place(0).united(place(childCount() - 1));
}

QAccessible::State RowAccessible::state() const {
    QAccessible::State state = TablePart::state();
    const QAbstractItemView& view = owner().view;
    state.focusable = true;
    state.focused = view.hasFocus() && view.currentIndex().row() == row();
    state.active = state.focused;
    return state;
}

}  // namespace platform
