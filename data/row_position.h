#pragma once

#include <vector>

namespace data {

/// Where a recordset stands among its rows: which moves are allowed and where they lead.
///
/// Rows are counted from 0 in the order in which they were fetched; a deleted one keeps its number, so that the
/// bookmarks of the others stay good, but is passed over and not counted.
class RowPosition {
public:
    RowPosition() = default;
    /// On the first of some rows, or at both ends without any.
    explicit RowPosition(int rows);
    /// Behind the last of rows that aren't counted.
    [[nodiscard]] static RowPosition behindLast();

    /// Each throws RuntimeError 3021 where the move isn't allowed, and then leaves the position as it was.
    void first();
    void last();
    void next();
    void previous();
    /// Throws RuntimeError -2147217906 for a row that isn't there or was deleted.
    void to(int row);

    /// Adds a row behind the others and stands on it.
    void append();
    /// Takes the current row out; it stays current until the next move.
    void removeCurrent();

    [[nodiscard]] bool bof() const { return bof_; }
    [[nodiscard]] bool eof() const { return eof_; }
    [[nodiscard]] bool onRow() const { return !bof_ && !eof_; }
    [[nodiscard]] int row() const { return row_; }
    [[nodiscard]] int count() const { return rows_ - static_cast<int>(removed_.size()); }
    /// 1..N; -1 without rows, -2 before the first, -3 behind the last.
    [[nodiscard]] int absolute() const;

private:
    [[nodiscard]] bool isRemoved(int row) const;
    void seek(int from, int step);

    int rows_ = 0;
    int row_ = 0;
    bool bof_ = true;
    bool eof_ = true;
    std::vector<int> removed_;
};

}  // namespace data
