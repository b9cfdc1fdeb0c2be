#pragma once

#include <QString>

#include "platform/base/runtime_error.h"

namespace SQLite {
class Database;
class Exception;
}  // namespace SQLite

namespace data {

/// Numbers of the database provider's errors.
enum class ProviderError : int {
    Failed = -2147467259,
    Syntax = -2147217900,
    BookmarkInvalid = -2147217906,
    MissingParameter = -2147217904,
    DoesNotFit = -2147217887,
    RowDeleted = -2147217885,
    NoFetchBackward = -2147217884,
    Duplicate = -2147217873,
    MissingTable = -2147217865,
    RowChanged = -2147217864,
};

/// What lies in the place of a family's database is none: nothing at all, or a file that is empty, damaged or foreign.
class NoDatabase : public platform::RuntimeError {
public:
    explicit NoDatabase(const QString& words);
};

/// The error with its standing words; Failed and Syntax have none of their own and take them from the place.
[[nodiscard]] platform::RuntimeError providerError(ProviderError number);
[[nodiscard]] platform::RuntimeError providerError(ProviderError number, const QString& words);

/// What the provider says when SQLite fails while it prepares or runs a statement.
[[nodiscard]] platform::RuntimeError statementError(const SQLite::Exception& cause, SQLite::Database& database,
                                                    const QString& statement);

/// What the provider says when the file can't be opened: NoDatabase for one that is damaged or no database.
[[noreturn]] void throwOpeningError(const SQLite::Exception& cause, const QString& path);

}  // namespace data
