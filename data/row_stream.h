#pragma once

#include <memory>
#include <optional>

#include "data/row_set.h"

namespace SQLite {
class Statement;
}

namespace data {

struct OpenFile;

/// The rows of a select one after another, each read once.
///
/// It reads one row ahead, so that a look-up of a single row is finished with the file at once, however long it stays
/// open.
class RowStream {
public:
    /// Begins with the first row of a statement that is ready to run. Throws the provider's errors.
    RowStream(OpenFile& file, std::unique_ptr<SQLite::Statement> statement);
    ~RowStream();

    [[nodiscard]] const std::vector<ShownColumn>& columns() const { return columns_; }
    /// The current row; nothing behind the last one.
    [[nodiscard]] const std::optional<StoredRow>& current() const { return current_; }
    void next();

private:
    std::optional<StoredRow> fetch();

    OpenFile& file_;
    std::unique_ptr<SQLite::Statement> statement_;
    std::vector<ShownColumn> columns_;
    std::optional<StoredRow> current_;
    std::optional<StoredRow> ahead_;
};

}  // namespace data
