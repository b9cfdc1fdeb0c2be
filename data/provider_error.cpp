#include "data/provider_error.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <cerrno>

#include "data/syntax_words.h"
#include "platform/base/files.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

RuntimeError fullDisk() {
    return {Error::Failed, u"There is not enough space on the disk."_s};
}

RuntimeError readOnly() {
    return {Error::Failed, u"Operation must use an updateable query."_s};
}

RuntimeError fileInUse(const QString& path) {
    return {Error::Failed, u"Could not use '%1'; file already in use."_s.arg(path)};
}

QString unrecognizedWords(const QString& path) {
    return u"Unrecognized database format '%1'."_s.arg(path);
}

RuntimeError cantOpen(const QString& path) {
    if (platform::files::mayRead(path)) return {Error::Failed, u"Could not open '%1'."_s.arg(path)};
    return {Error::Failed, u"Could not open '%1'; you do not have permission to read it."_s.arg(path)};
}

bool meansNoRoom(int systemError) {
    return systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG;
}

/// A full disk shows in several result codes; the operating system's own number tells them apart. SQLite keeps it for
/// the statement, or for the file when the failure came at the very end of the save.
bool isFullDisk(const SQLite::Exception& cause, SQLite::Database& database) {
    const int code = cause.getErrorCode();
    if (code != SQLITE_IOERR && code != SQLITE_CANTOPEN) return code == SQLITE_FULL;
    int ofFile = 0;
    sqlite3_file_control(database.getHandle(), "main", SQLITE_FCNTL_LAST_ERRNO, &ofFile);
    return meansNoRoom(ofFile) || meansNoRoom(sqlite3_system_errno(database.getHandle()));
}

RuntimeError missingTable(const QString& name) {
    return {Error::MissingTable,
            u"The database engine cannot find the input table or query '%1'.  Make sure it "
            "exists and that its name is spelled correctly."_s.arg(name)};
}

/// Where the parser stopped, in characters of the statement; -1 at its end.
qsizetype errorOffset(SQLite::Database& database, const QString& statement) {
    const int bytes = sqlite3_error_offset(database.getHandle());
    return bytes < 0 ? -1 : QString::fromUtf8(statement.toUtf8().left(bytes)).size();
}

RuntimeError textError(const SQLite::Exception& cause, SQLite::Database& database, const QString& statement) {
    const auto offset = errorOffset(database, statement);
    const QString message = QString::fromUtf8(cause.what());
    if (message.startsWith(u"no such table: "_s)) return missingTable(message.section(u": "_s, 1));
    if (message.startsWith(u"no such column"_s) || message.contains(u"has no column named"_s))
        return RuntimeError(Error::MissingParameter);
    const bool isSyntax = message.contains(u"syntax error"_s) || message.startsWith(u"unrecognized token"_s) ||
                          message.startsWith(u"incomplete input"_s) || message.startsWith(u"row value misused"_s);
    if (isSyntax) return {Error::Syntax, syntaxWords(statement, message, offset)};
    if (message.startsWith(u"cannot modify "_s) && message.endsWith(u" because it is a view"_s)) return readOnly();
    return {Error::Syntax, message};
}

RuntimeError constraintError(int extended) {
    const bool isDuplicate = extended == SQLITE_CONSTRAINT_UNIQUE || extended == SQLITE_CONSTRAINT_PRIMARYKEY ||
                             extended == SQLITE_CONSTRAINT_ROWID;
    return RuntimeError(isDuplicate ? Error::Duplicate : Error::DoesNotFit);
}

}  // namespace

NoDatabase::NoDatabase(const QString& words) : RuntimeError(Error::Failed, words) {}

RuntimeError statementError(const SQLite::Exception& cause, SQLite::Database& database, const QString& statement) {
    const QString path = QString::fromStdString(database.getFilename());
    if (isFullDisk(cause, database)) return fullDisk();
    switch (cause.getErrorCode()) {
        case SQLITE_ERROR:
            return textError(cause, database, statement);
        case SQLITE_CONSTRAINT:
            return constraintError(cause.getExtendedErrorCode());
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return fileInUse(path);
        // A folder that can't be written refuses the journal, which is opened at the first write.
        case SQLITE_READONLY:
        case SQLITE_CANTOPEN:
            return readOnly();
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
            return {Error::Failed, unrecognizedWords(path)};
        case SQLITE_IOERR:
            return {Error::Failed, u"Disk or network error."_s};
        default:
            return RuntimeError(Error::Failed, QString::fromUtf8(cause.what()));
    }
}

void throwOpeningError(const SQLite::Exception& cause, const QString& path) {
    switch (cause.getErrorCode()) {
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB:
        // A schema, or a version of the format, that the engine doesn't understand.
        case SQLITE_ERROR:
            throw NoDatabase(unrecognizedWords(path));
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            throw fileInUse(path);
        case SQLITE_CANTOPEN:
        case SQLITE_PERM:
            throw cantOpen(path);
        case SQLITE_READONLY:
            throw readOnly();
        case SQLITE_IOERR:
            throw RuntimeError(Error::Failed, u"Disk or network error."_s);
        default:
            throw RuntimeError(Error::Failed, QString::fromUtf8(cause.what()));
    }
}

}  // namespace data
