#pragma once

#include <QAbstractTableModel>
#include <QCache>

#include "find/book_search.h"

namespace find {

/// The hits of a search for a view: those that come first, then the others. A hit's texts are read when it is looked
/// at.
class FoundModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Category, Member, Field, Text, columns };

    explicit FoundModel(BookSearch& search) : search_(search) {}

    /// The search begins anew.
    void clear();
    /// The search has gone on.
    void extend();
    [[nodiscard]] const Hit& hit(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] QStringList texts(int row) const;

    BookSearch& search_;
    int first_ = 0;
    int others_ = 0;
    static constexpr int mostSeen = 300;
    mutable QCache<int, QStringList> seen_{mostSeen};
};

}  // namespace find
