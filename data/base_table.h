#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "data/column_type.h"

namespace SQLite {
class Database;
}

namespace data {

struct TableColumn {
    QString name;
    ColumnType type;
    QString defaultExpression;  ///< empty without one
    bool isRowId = false;       ///< the whole-number key, by which the file finds a row
};

/// A table of the file with its columns in their order.
struct BaseTable {
    QString name;
    std::vector<TableColumn> columns;

    /// The column of a name, case regardless; -1 when there is none.
    [[nodiscard]] int indexOf(const QString& column) const;
};

/// Nothing for a name that no table has; a view is no table.
[[nodiscard]] std::optional<BaseTable> baseTable(SQLite::Database& database, const QString& name);

}  // namespace data
