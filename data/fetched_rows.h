#pragma once

#include "data/row_set.h"

namespace SQLite {
class Statement;
}

namespace data {

struct OpenFile;

/// The columns that a prepared select shows.
[[nodiscard]] std::vector<ShownColumn> shownColumns(const SQLite::Statement& statement);

/// The values of all rows of a select whose rows have no key of their own: a join of several tables' columns, groups,
/// expressions. They can't be written.
class FetchedRows : public RowSet {
public:
    /// Throws the provider's errors.
    FetchedRows(OpenFile& file, SQLite::Statement& statement);

    [[nodiscard]] const std::vector<ShownColumn>& columns() const override { return columns_; }
    [[nodiscard]] int count() const override { return static_cast<int>(rows_.size()); }
    [[nodiscard]] std::optional<StoredRow> read(int row) override { return rows_[static_cast<size_t>(row)]; }
    /// In the first column of that name.
    [[nodiscard]] std::optional<int> find(qint64 id) const override;

private:
    std::vector<ShownColumn> columns_;
    std::vector<StoredRow> rows_;
};

}  // namespace data
