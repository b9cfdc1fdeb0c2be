#pragma once

#include <QAccessible>
#include <QHash>
#include <QList>
#include <QModelIndex>

class QAbstractItemView;
class QHeaderView;

namespace platform {

/// A table and the account that is given of it.
struct AccountedTable {
    QAccessibleInterface& account;
    QAbstractItemView& view;
    const QHeaderView& header;

    /// The columns that are seen, by their numbers in the model.
    [[nodiscard]] QList<int> columns() const;
};

class RowAccessible;

/// What a row of a table and a cell in it have in common.
class TablePart : public QAccessibleInterface {
public:
    TablePart(const AccountedTable& table, int row) : table_(table), row_(row) {}

    [[nodiscard]] bool isValid() const override;
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QWindow* window() const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    void setText(QAccessible::Text /*what*/, const QString& /*text*/) override {}
    [[nodiscard]] QAccessible::State state() const override;

    [[nodiscard]] const AccountedTable& owner() const { return table_; }
    [[nodiscard]] int row() const { return row_; }

protected:
    /// The model's cell under a column that is seen, by its place among them.
    [[nodiscard]] QModelIndex index(int column) const;
    /// Where the cell stands on the screen.
    [[nodiscard]] QRect place(int column) const;

private:
    const AccountedTable& table_;
    int row_;
};

/// A cell: its text.
class CellAccessible : public TablePart, public QAccessibleTableCellInterface {
public:
    CellAccessible(RowAccessible& parent, int column);

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QAccessibleInterface* parent() const override;
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    [[nodiscard]] QString text(QAccessible::Text what) const override;
    [[nodiscard]] QRect rect() const override { return place(column_); }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Cell; }

    [[nodiscard]] bool isSelected() const override { return owner().account.tableInterface()->isRowSelected(row()); }
    [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    [[nodiscard]] int columnIndex() const override { return column_; }
    [[nodiscard]] int rowIndex() const override { return row(); }
    [[nodiscard]] int columnExtent() const override { return 1; }
    [[nodiscard]] int rowExtent() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* table() const override { return &owner().account; }

private:
    RowAccessible& parent_;
    int column_;
};

/// A row: the texts of its cells, one after the other.
class RowAccessible : public TablePart {
public:
    using TablePart::TablePart;
    ~RowAccessible() override;

    [[nodiscard]] QAccessibleInterface* parent() const override { return &owner().account; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QString text(QAccessible::Text what) const override;
    [[nodiscard]] QRect rect() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Row; }
    [[nodiscard]] QAccessible::State state() const override;

private:
    mutable QHash<int, QAccessible::Id> cells_;
};

}  // namespace platform
