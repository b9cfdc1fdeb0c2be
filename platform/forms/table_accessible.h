#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QList>

#include "platform/forms/row_accessible.h"

namespace platform {

/// A table of whole rows as a screen reader meets it: rows of cells, with neither the columns that are hidden nor
/// anything else that can't be seen. A row holds the focus, and its name is all that it says.
class TableAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    TableAccessible(QAbstractItemView& view, const QHeaderView& header);
    ~TableAccessible() override;

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] int childCount() const override { return rowCount(); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;
    /// Without a name of its own it bears the title of its window. As a description the columns' captions, which are
    /// read when the table is entered.
    [[nodiscard]] QString text(QAccessible::Text what) const override;

    // Columns count among those that are seen.
    [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override;
    [[nodiscard]] int selectedCellCount() const override;
    [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override;
    [[nodiscard]] QString columnDescription(int column) const override;
    [[nodiscard]] QString rowDescription(int /*row*/) const override { return {}; }
    [[nodiscard]] int selectedColumnCount() const override { return 0; }
    [[nodiscard]] int selectedRowCount() const override;
    [[nodiscard]] int columnCount() const override;
    [[nodiscard]] int rowCount() const override;
    [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
    [[nodiscard]] QList<int> selectedRows() const override;
    [[nodiscard]] bool isColumnSelected(int /*column*/) const override { return false; }
    [[nodiscard]] bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

private:
    void forgetRows();

    AccountedTable table_;
    mutable QHash<int, QAccessible::Id> rows_;
};

/// Tells screen readers that the table's current row has the focus, if the table has it.
void tellCurrentRow(QAbstractItemView& table);
/// Tells it behind the running event, in which the toolkit says that the table as a whole came by the focus.
void tellCurrentRowSoon(QAbstractItemView& table);

}  // namespace platform
