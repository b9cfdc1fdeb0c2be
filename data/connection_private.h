#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <QString>
#include <memory>
#include <vector>

#include "data/connection.h"
#include "data/provider_error.h"

namespace data {

class KeyedRows;

/// What the recordsets of a connection share. Only `data` looks inside.
struct Connection::Private {
    std::unique_ptr<SQLite::Database> database;
    QString path;
    std::vector<Recordset*> recordsets;
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

/// Lets every snapshot put a row's values aside before a statement of this connection changes or deletes it.
void watchRowChanges(Connection::Private& connection);

}  // namespace data
