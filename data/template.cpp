#include "data/template.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QFile>

#include "data/schema.h"
#include "data/states.h"
#include "data/tables.h"
#include "platform/base/file_replacement.h"

namespace data {

namespace {

void createTables(SQLite::Database& database) {
    for (const Table& table : allTables()) {
        database.exec(createStatement(table).toStdString());
        for (const QString& statement : indexStatements(table))
            database.exec(statement.toStdString());
    }
}

void insertStates(SQLite::Database& database) {
    SQLite::Statement insert(database, R"(INSERT INTO "LUStates" ("Name") VALUES (?))");
    for (const auto name : stateNames()) {
        insert.bind(1, QString(name).toStdString());
        insert.exec();
        insert.reset();
    }
}

void writeDatabase(const QString& path) {
    SQLite::Database database(QFile::encodeName(path).toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    database.exec("PRAGMA page_size = 4096");
    database.exec("PRAGMA journal_mode = DELETE");
    SQLite::Transaction transaction(database);
    createTables(database);
    insertStates(database);
    transaction.commit();
}

}  // namespace

void createTemplate(const QString& path) {
    platform::files::FileReplacement file(path);
    writeDatabase(file.path());
    file.place();
}

}  // namespace data
