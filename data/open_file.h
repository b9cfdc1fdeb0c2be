#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <QString>
#include <memory>
#include <vector>

#include "data/provider_error.h"

namespace data {

class KeyedRows;

/// Rows of the file that someone holds; they go when it is closed.
class HeldRows {
public:
    virtual void letGo() = 0;
    virtual ~HeldRows() = default;
};

/// What a connection and the rows that are read through it share. Only `data` looks inside.
struct OpenFile {
    std::unique_ptr<SQLite::Database> database;
    QString path;
    std::vector<HeldRows*> held;
    /// Snapshots that want to know of a row before it is changed or deleted.
    std::vector<KeyedRows*> snapshots;

    /// Runs a piece of work on the file and turns what SQLite throws into the provider's error.
    template <typename Work>
    auto run(const QString& statement, Work work) {
        try {
            return work(*database);
        } catch (const SQLite::Exception& cause) {
            throw statementError(cause, *database, statement);
        }
    }
};

}  // namespace data
