#pragma once

#include <QString>
#include <memory>
#include <string_view>

#include "data/connection.h"
#include "data/open_file.h"

struct sqlite3_stmt;

namespace data {

/// The rows of a select, one after the other, as they stand in the file: for whoever looks at very many of them, keeps
/// none, and has no time for values of a form's kinds.
///
/// From the first row to rest(), or to the end, it holds the file against writing by other programs.
class RowScan final : private HeldRows {
public:
    /// `statement` in SQLite's own spelling. Throws the provider's errors.
    RowScan(Connection& connection, const QString& statement);
    ~RowScan() override;
    RowScan(const RowScan&) = delete;
    RowScan& operator=(const RowScan&) = delete;

    /// Goes to the next row, the first one at the beginning; false behind the last. Throws the provider's errors, and
    /// 3704 when the connection was closed.
    bool next();
    /// Goes to the first row of the statement with its one parameter set anew; false when there is none.
    bool find(qint64 parameter);
    /// Lets the file go; the next row is the first one again.
    void rest();

    // Columns of the current row, from 0. A text is good until the next row.
    [[nodiscard]] bool isNumber(int column) const;
    [[nodiscard]] std::string_view text(int column) const;
    [[nodiscard]] double number(int column) const;
    [[nodiscard]] qint64 whole(int column) const;

private:
    void letGo() override;
    void check(int result, const QString& statement) const;

    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    OpenFile& file_;
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

}  // namespace data
