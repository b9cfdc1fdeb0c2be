#include "data/connection.h"

#include <sqlite3.h>

#include <QDir>
#include <QFileInfo>

#include "data/engine_files.h"
#include "data/open_file.h"
#include "data/provider_error.h"
#include "data/row_changes.h"
#include "platform/base/files.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace data {

namespace {

/// How long a statement waits for another program that is writing to the file.
constexpr int busyMilliseconds = 2000;

/// The engine would make a missing file and take an empty one for a new database.
void refuseWhatIsNoFile(const QString& path) {
    const QFileInfo file(path);
    if (!file.dir().exists())
        throw NoDatabase(
            u"'%1' is not a valid path.  Make sure that the path name is spelled correctly and that "
            "you are connected to the server on which the file resides."_s.arg(path));
    if (files::isMissing(path) || file.isDir()) throw NoDatabase(u"Could not find file '%1'."_s.arg(path));
    if (file.size() == 0) throw NoDatabase(u"Unrecognized database format '%1'."_s.arg(path));
}

/// Deleting the journal ends a save, so that one file is always the whole database; EXTRA also flushes the folder
/// behind that, without which a finished save could be taken back by a power cut.
void configure(SQLite::Database& database) {
    database.exec("PRAGMA trusted_schema=OFF");
    database.exec("PRAGMA foreign_keys=OFF");
    database.exec("PRAGMA synchronous=EXTRA");
    database.tryExec("PRAGMA journal_mode=DELETE");
    // A walk goes member by member, and their rows lie mixed: each round would read the whole table anew.
    database.exec("PRAGMA cache_size=-8192");
}

/// Reading the schema rolls an interrupted save back and finds most damage; a last page cut short is not noticed by it.
void checkWhole(SQLite::Database& database, const QString& path) {
    database.execAndGet("SELECT count(*) FROM sqlite_schema");
    const qint64 pages = database.execAndGet("PRAGMA page_count").getInt64();
    const qint64 pageSize = database.execAndGet("PRAGMA page_size").getInt64();
    if (QFileInfo(path).size() < pages * pageSize) throw NoDatabase(u"Unrecognized database format '%1'."_s.arg(path));
}

std::unique_ptr<SQLite::Database> openDatabase(const QString& path) {
    try {
        const auto file = QFileInfo(path).absoluteFilePath().toStdString();
        auto database =
            std::make_unique<SQLite::Database>(file, SQLite::OPEN_READWRITE, busyMilliseconds, engineFiles());
        configure(*database);
        checkWhole(*database, path);
        return database;
    } catch (const SQLite::Exception& cause) {
        throwOpeningError(cause, path);
    }
}

}  // namespace

Connection::Connection() : file_(std::make_unique<OpenFile>()) {}

Connection::~Connection() {
    close();
}

void Connection::open(const QString& path) {
    if (isOpen()) throw RuntimeError(Error::Open);
    refuseWhatIsNoFile(path);
    file_->database = openDatabase(path);
    file_->path = path;
    watchRowChanges(*file_);
}

void Connection::close() {
    while (!file_->held.empty())
        file_->held.back()->letGo();
    file_->database.reset();
    file_->path.clear();
}

bool Connection::isOpen() const {
    return file_->database != nullptr;
}

bool Connection::isReadOnly() const {
    if (!isOpen()) throw RuntimeError(Error::NoConnection);
    if (sqlite3_db_readonly(file_->database->getHandle(), "main") == 1) return true;
    // Each save begins with a journal beside the file.
    return !files::mayChange(QFileInfo(QFileInfo(file_->path).canonicalFilePath()).absolutePath());
}

QString Connection::path() const {
    return file_->path;
}

std::vector<QString> Connection::tableNames() const {
    if (!isOpen()) throw RuntimeError(Error::NoConnection);
    // Tables whose names begin "MSys" count as system tables, which come before the user's.
    const char* statement =
        "SELECT name FROM sqlite_schema WHERE type IN ('table', 'view') AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' "
        "ORDER BY type, substr(name, 1, 4) <> 'MSys', name COLLATE NOCASE";
    return file_->run(QString::fromUtf8(statement), [statement](SQLite::Database& database) {
        std::vector<QString> names;
        SQLite::Statement rows(database, statement);
        while (rows.executeStep())
            names.push_back(QString::fromUtf8(rows.getColumn(0).getText()));
        return names;
    });
}

// Reading at length ------------------------------------------------------------------------------------------------

Connection::ReadHold::ReadHold(Connection& connection)
    : file_(connection.file()),
      holds_(connection.isOpen() && sqlite3_get_autocommit(file_.database->getHandle()) != 0) {
    if (holds_) file_.run({}, [](SQLite::Database& database) { database.exec("BEGIN"); });
}

Connection::ReadHold::~ReadHold() {
    if (!holds_) return;
    try {
        file_.database->exec("COMMIT");
    } catch (const SQLite::Exception&) {
        // A failed read has ended it already.
    }
}

}  // namespace data
