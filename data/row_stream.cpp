#include "data/row_stream.h"

#include "data/fetched_rows.h"
#include "data/open_file.h"

namespace data {

RowStream::RowStream(OpenFile& file, std::unique_ptr<SQLite::Statement> statement)
    : file_(file), statement_(std::move(statement)), columns_(shownColumns(*statement_)) {
    current_ = fetch();
    ahead_ = fetch();
}

RowStream::~RowStream() = default;

void RowStream::next() {
    auto following = fetch();
    current_ = std::exchange(ahead_, std::move(following));
}

std::optional<StoredRow> RowStream::fetch() {
    if (!statement_) return std::nullopt;
    return file_.run({}, [this](SQLite::Database&) {
        if (statement_->executeStep()) return std::optional(storedRow(*statement_));
        statement_.reset();
        return std::optional<StoredRow>();
    });
}

}  // namespace data
