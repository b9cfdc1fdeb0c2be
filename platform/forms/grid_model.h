#pragma once

#include <QAbstractTableModel>
#include <QCache>
#include <QPointer>
#include <QStringList>

namespace platform {

class RowSource;

/// The rows of a recordset for a view, read one by one as the view asks for them.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setSource(RowSource* source);
    /// Texts of a row's cells; empty ones for a row that has gone from the file.
    [[nodiscard]] QStringList texts(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QPointer<RowSource> source_;
    QStringList columns_;
    int rows_ = 0;
    mutable QCache<int, QStringList> seen_{400};
};

}  // namespace platform
