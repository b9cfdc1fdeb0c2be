#include "data/book_check.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QUrl>
#include <QtEndian>

#include "data/open_file.h"
#include "data/provider_error.h"
#include "data/schema.h"
#include "data/tables.h"
#include "platform/base/files.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace data {

namespace {

/// Files of this program bear this number; one that changes the tables will count up.
constexpr int fileVersion = 0;

[[noreturn]] void refuse(const QString& path, const QString& reason) {
    throw NoDatabase(u"'%1' can't be used: %2"_s.arg(path, reason));
}

/// The first bytes of every database file, which tell its kind and its length.
class Header {
public:
    explicit Header(const QString& path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) throw RuntimeError(Error::PermissionDenied);
        bytes_ = file.read(length);
    }

    [[nodiscard]] bool isDatabase() const {
        return bytes_.size() == length && bytes_.startsWith(QByteArrayView("SQLite format 3\0", 16));
    }
    /// The versions of the format that it takes to write and to read the file.
    [[nodiscard]] bool isOfLaterFormat() const { return bytes_[18] > 2 || bytes_[19] > 2; }
    /// Bytes of the whole file; 0 where the last writer left them open.
    [[nodiscard]] qint64 fileBytes() const {
        const bool holds = number(24) == number(92);
        const qint64 pageSize = qFromBigEndian<quint16>(bytes_.constData() + 16);
        return holds ? number(28) * (pageSize == 1 ? 65536 : pageSize) : 0;
    }

private:
    static constexpr qsizetype length = 100;

    [[nodiscard]] qint64 number(qsizetype at) const { return qFromBigEndian<quint32>(bytes_.constData() + at); }

    QByteArray bytes_;
};

void checkHeader(const QString& path) {
    const qint64 size = files::fileSize(path);
    if (size == 0) refuse(path, u"the file is empty."_s);
    const Header header(path);
    if (!header.isDatabase()) refuse(path, u"it is no Kinbook database."_s);
    if (header.isOfLaterFormat()) refuse(path, u"it was written by a newer version of Kinbook."_s);
    if (size < header.fileBytes())
        refuse(path, u"it is cut short, only %1 of its %2 bytes are there."_s.arg(size).arg(header.fileBytes()));
}

/// "table" and "table.column" for all that the file stores, in lower case: names compare without case. Views, virtual
/// tables and computed columns are left out, for they store nothing.
QSet<QString> storedNames(SQLite::Database& database) {
    SQLite::Statement rows(database,
                           "SELECT stored.name, of.name FROM sqlite_schema stored, pragma_table_info(stored.name) of "
                           "WHERE stored.type = 'table' AND stored.rootpage > 0");
    QSet<QString> names;
    while (rows.executeStep()) {
        const QString table = QString::fromUtf8(rows.getColumn(0).getText()).toLower();
        names << table << table + u'.' + QString::fromUtf8(rows.getColumn(1).getText()).toLower();
    }
    return names;
}

void checkNames(SQLite::Database& database, const QString& path) {
    const QSet<QString> names = storedNames(database);
    for (const Table& table : allTables()) {
        const QString tableName = table.name;
        if (!names.contains(tableName.toLower()))
            refuse(path, u"it is no Kinbook database, for it has no table '%1'."_s.arg(tableName));
        for (const Column& column : storedColumns(table)) {
            const QString columnName = column.name;
            if (!names.contains((tableName + u'.' + columnName).toLower()))
                refuse(path, u"it is no Kinbook database, for its table '%1' has no column '%2'."_s.arg(tableName,
                                                                                                        columnName));
        }
    }
}

void checkContent(SQLite::Database& database, const QString& path) {
    const std::string found = database.execAndGet("PRAGMA quick_check(1)").getString();
    if (found != "ok") refuse(path, u"it is damaged (%1)."_s.arg(QString::fromStdString(found).simplified()));
    if (database.execAndGet("PRAGMA user_version").getInt() > fileVersion)
        refuse(path, u"it was written by a newer version of Kinbook."_s);
    checkNames(database, path);
}

}  // namespace

void checkDatabase(const QString& path) {
    checkHeader(path);
    // Taken as a file that nobody changes it needs no lock, and nothing is written beside it.
    QUrl address = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
    address.setQuery(u"immutable=1"_s);
    try {
        SQLite::Database database(address.toEncoded().toStdString(), SQLite::OPEN_READONLY | SQLite::OPEN_URI);
        checkContent(database, path);
    } catch (const SQLite::Exception& cause) {
        refuse(path, u"it is damaged (%1)."_s.arg(QString::fromUtf8(cause.what())));
    }
}

void checkTables(const Connection& connection) {
    connection.file().run({}, [&](SQLite::Database& database) { checkNames(database, connection.path()); });
}

}  // namespace data
