#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "data/column_type.h"
#include "data/stored_row.h"

namespace data {

/// A column of a select list. An expression has no type of its own: each of its values has one.
struct ShownColumn {
    QString name;
    std::optional<ColumnType> type;
};

/// The rows of a statement as they were when it was carried out.
class RowSet {
public:
    RowSet() = default;
    virtual ~RowSet() = default;
    RowSet(const RowSet&) = delete;
    RowSet& operator=(const RowSet&) = delete;

    [[nodiscard]] virtual const std::vector<ShownColumn>& columns() const = 0;
    [[nodiscard]] virtual int count() const = 0;
    /// Nothing for a row that another program has taken out of the file.
    [[nodiscard]] virtual std::optional<StoredRow> read(int row) = 0;
    /// Number of the row with that ID; nothing when none has it.
    [[nodiscard]] virtual std::optional<int> find(qint64 id) const = 0;
};

}  // namespace data
