#include "data/row_scan.h"

#include <sqlite3.h>

#include "platform/base/runtime_error.h"

namespace data {

RowScan::RowScan(Connection& connection, const QString& statement) : file_(connection.file()) {
    if (!connection.isOpen()) throw platform::RuntimeError(platform::Error::NoConnection);
    const std::string text = statement.toStdString();
    sqlite3_stmt* prepared = nullptr;
    const int result = sqlite3_prepare_v2(file_.database->getHandle(), text.c_str(), -1, &prepared, nullptr);
    statement_.reset(prepared);
    check(result, statement);
    file_.held.push_back(this);
}

RowScan::~RowScan() {
    letGo();
}

void RowScan::letGo() {
    statement_.reset();
    std::erase(file_.held, static_cast<HeldRows*>(this));
}

void RowScan::Finalize::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

void RowScan::check(int result, const QString& statement) const {
    if (result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE) return;
    file_.run(statement, [&](SQLite::Database& database) { throw SQLite::Exception(database.getHandle(), result); });
}

bool RowScan::next() {
    if (!statement_) throw platform::RuntimeError(platform::Error::Closed);
    const int result = sqlite3_step(statement_.get());
    check(result, {});
    return result == SQLITE_ROW;
}

bool RowScan::find(qint64 parameter) {
    rest();
    if (!statement_) throw platform::RuntimeError(platform::Error::Closed);
    check(sqlite3_bind_int64(statement_.get(), 1, parameter), {});
    return next();
}

void RowScan::rest() {
    sqlite3_reset(statement_.get());
}

bool RowScan::isNumber(int column) const {
    const int type = sqlite3_column_type(statement_.get(), column);
    return type == SQLITE_INTEGER || type == SQLITE_FLOAT;
}

std::string_view RowScan::text(int column) const {
    const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    if (!text) return {};
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

double RowScan::number(int column) const {
    return sqlite3_column_double(statement_.get(), column);
}

qint64 RowScan::whole(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

}  // namespace data
