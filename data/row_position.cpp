#include "data/row_position.h"

#include <algorithm>

#include "data/provider_error.h"

namespace data {

RowPosition::RowPosition(int rows) : rows_(rows), bof_(rows == 0), eof_(rows == 0) {}

RowPosition RowPosition::behindLast() {
    RowPosition position;
    position.bof_ = false;
    return position;
}

void RowPosition::first() {
    if (bof_ && eof_) throw RuntimeError(Error::NoCurrentRecord);
    seek(0, 1);
}

void RowPosition::last() {
    if (bof_ && eof_) throw RuntimeError(Error::NoCurrentRecord);
    seek(rows_ - 1, -1);
}

void RowPosition::next() {
    if (eof_) throw RuntimeError(Error::NoCurrentRecord);
    seek(bof_ ? 0 : row_ + 1, 1);
}

void RowPosition::previous() {
    if (bof_) throw RuntimeError(Error::NoCurrentRecord);
    seek(eof_ ? rows_ - 1 : row_ - 1, -1);
}

void RowPosition::to(int row) {
    if (row < 0 || row >= rows_ || isRemoved(row)) throw RuntimeError(Error::BookmarkInvalid);
    row_ = row;
    bof_ = eof_ = false;
}

void RowPosition::append() {
    to(rows_++);
}

void RowPosition::removeCurrent() {
    removed_.insert(std::lower_bound(removed_.begin(), removed_.end(), row_), row_);
}

int RowPosition::absolute() const {
    if (bof_ || eof_) return bof_ && eof_ ? -1 : bof_ ? -2 : -3;
    const auto before = std::lower_bound(removed_.begin(), removed_.end(), row_) - removed_.begin();
    return row_ + 1 - static_cast<int>(before);
}

bool RowPosition::isRemoved(int row) const {
    return std::binary_search(removed_.begin(), removed_.end(), row);
}

/// Stands on the next row that is left in the direction of the step, or at that end of the set.
void RowPosition::seek(int from, int step) {
    while (from >= 0 && from < rows_ && isRemoved(from))
        from += step;
    const bool empty = count() == 0;
    bof_ = empty || from < 0;
    eof_ = empty || from >= rows_;
    if (onRow()) row_ = from;
}

}  // namespace data
