#include "data/template.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QFile>
#include <filesystem>
#include <system_error>

#include "data/schema.h"
#include "data/states.h"
#include "data/tables.h"
#include "platform/base/runtime_error.h"

namespace data {

namespace {

constexpr int pathAccessError = 75;

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

void writeDatabase(const std::filesystem::path& path) {
    SQLite::Database database(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    database.exec("PRAGMA page_size = 4096");
    database.exec("PRAGMA journal_mode = DELETE");
    SQLite::Transaction transaction(database);
    createTables(database);
    insertStates(database);
    transaction.commit();
}

/// A file in the making, gone at the end unless it has got its place.
class Draft {
public:
    explicit Draft(const std::filesystem::path& target) : target_(target), path_(target) {
        path_ += ".new";
        discard();
    }
    ~Draft() { discard(); }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    void putInPlace() const {
        std::error_code error;
        std::filesystem::rename(path_, target_, error);
        if (error) throw platform::RuntimeError(pathAccessError);
    }

private:
    void discard() const {
        std::error_code ignored;
        std::filesystem::remove(path_, ignored);
    }

    std::filesystem::path target_;
    std::filesystem::path path_;
};

}  // namespace

void createTemplate(const QString& path) {
    const Draft draft(std::filesystem::path(QFile::encodeName(path).toStdString()));
    writeDatabase(draft.path());
    draft.putInPlace();
}

}  // namespace data
