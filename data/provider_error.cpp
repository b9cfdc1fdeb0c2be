#include "data/provider_error.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <cerrno>

#include "data/syntax_words.h"
#include "platform/base/files.h"

using namespace Qt::StringLiterals;

namespace data {

using platform::RuntimeError;

namespace {

QString standingWords(ProviderError number) {
    switch (number) {
        case ProviderError::BookmarkInvalid:
            return u"Bookmark is invalid."_s;
        case ProviderError::MissingParameter:
            return u"No value given for one or more required parameters."_s;
        case ProviderError::DoesNotFit:
            return u"Multiple-step operation generated errors. Check each status value."_s;
        case ProviderError::RowDeleted:
            return u"Row handle referred to a deleted row or a row marked for deletion."_s;
        case ProviderError::NoFetchBackward:
            return u"Rowset does not support fetching backward."_s;
        case ProviderError::Duplicate:
            return u"The changes you requested to the table were not successful because they would create duplicate "
                   "values in the index, primary key, or relationship.  Change the data in the field or fields that "
                   "contain duplicate data, remove the index, or redefine the index to permit duplicate entries and "
                   "try again."_s;
        case ProviderError::RowChanged:
            return u"Row cannot be located for updating. Some values may have been changed since it was last read."_s;
        default:
            return {};
    }
}

RuntimeError fullDisk() {
    return providerError(ProviderError::Failed, u"There is not enough space on the disk."_s);
}

RuntimeError readOnly() {
    return providerError(ProviderError::Failed, u"Operation must use an updateable query."_s);
}

RuntimeError fileInUse(const QString& path) {
    return providerError(ProviderError::Failed, u"Could not use '%1'; file already in use."_s.arg(path));
}

QString unrecognizedWords(const QString& path) {
    return u"Unrecognized database format '%1'."_s.arg(path);
}

RuntimeError cantOpen(const QString& path) {
    if (platform::files::mayRead(path))
        return providerError(ProviderError::Failed, u"Could not open '%1'."_s.arg(path));
    return providerError(ProviderError::Failed,
                         u"Could not open '%1'; you do not have permission to read it."_s.arg(path));
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
    return providerError(ProviderError::MissingTable,
                         u"The Microsoft Jet database engine cannot find the input table or query '%1'.  Make sure it "
                         "exists and that its name is spelled correctly."_s.arg(name));
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
        return providerError(ProviderError::MissingParameter);
    const bool isSyntax = message.contains(u"syntax error"_s) || message.startsWith(u"unrecognized token"_s) ||
                          message.startsWith(u"incomplete input"_s) || message.startsWith(u"row value misused"_s);
    if (isSyntax) return providerError(ProviderError::Syntax, syntaxWords(statement, message, offset));
    if (message.startsWith(u"cannot modify "_s) && message.endsWith(u" because it is a view"_s)) return readOnly();
    return providerError(ProviderError::Syntax, message);
}

RuntimeError constraintError(int extended) {
    const bool isDuplicate = extended == SQLITE_CONSTRAINT_UNIQUE || extended == SQLITE_CONSTRAINT_PRIMARYKEY ||
                             extended == SQLITE_CONSTRAINT_ROWID;
    return providerError(isDuplicate ? ProviderError::Duplicate : ProviderError::DoesNotFit);
}

}  // namespace

NoDatabase::NoDatabase(const QString& words) : RuntimeError(static_cast<int>(ProviderError::Failed), words) {}

RuntimeError providerError(ProviderError number, const QString& words) {
    return RuntimeError(static_cast<int>(number), words);
}

RuntimeError providerError(ProviderError number) {
    return providerError(number, standingWords(number));
}

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
            return providerError(ProviderError::Failed, unrecognizedWords(path));
        case SQLITE_IOERR:
            return providerError(ProviderError::Failed, u"Disk or network error."_s);
        default:
            return providerError(ProviderError::Failed, QString::fromUtf8(cause.what()));
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
            throw providerError(ProviderError::Failed, u"Disk or network error."_s);
        default:
            throw providerError(ProviderError::Failed, QString::fromUtf8(cause.what()));
    }
}

}  // namespace data
