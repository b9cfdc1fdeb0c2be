#pragma once

#include <QString>

#include "platform/base/runtime_error.h"

namespace SQLite {
class Database;
class Exception;
}  // namespace SQLite

namespace data {

// All that fails here fails with them.
using platform::Error;
using platform::RuntimeError;

/// What lies in the place of a family's database is none: nothing at all, or a file that is empty, damaged or foreign.
class NoDatabase : public RuntimeError {
public:
    explicit NoDatabase(const QString& words);
};

/// What the provider says when SQLite fails while it prepares or runs a statement.
[[nodiscard]] RuntimeError statementError(const SQLite::Exception& cause, SQLite::Database& database,
                                          const QString& statement);

/// What the provider says when the file can't be opened: NoDatabase for one that is damaged or no database.
[[noreturn]] void throwOpeningError(const SQLite::Exception& cause, const QString& path);

}  // namespace data
