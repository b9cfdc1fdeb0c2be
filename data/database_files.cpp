#include "data/database_files.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <QtEndian>
#include <cerrno>
#include <cstdio>

#include "data/provider_error.h"
#include "data/tables.h"
#include "platform/base/conversions.h"
#include "platform/base/file_errors.h"
#include "platform/base/file_identity.h"
#include "platform/base/file_replacement.h"
#include "platform/base/files.h"
#include "platform/base/folder_entries.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace data {

using platform::RuntimeError;

namespace {

constexpr int overflow = 6;
constexpr int permissionDenied = 70;

/// Files of this program bear this number; one that changes the tables will count up.
constexpr int fileVersion = 0;

[[noreturn]] void refuse(const QString& path, const QString& reason) {
    throw providerError(ProviderError::Failed, u"'%1' can't be used: %2"_s.arg(path, reason));
}

/// The first bytes of every database file, which tell its kind and its length.
class Header {
public:
    explicit Header(const QString& path) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) throw RuntimeError(permissionDenied);
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

void checkContent(SQLite::Database& database, const QString& path) {
    const std::string found = database.execAndGet("PRAGMA quick_check(1)").getString();
    if (found != "ok") refuse(path, u"it is damaged (%1)."_s.arg(QString::fromStdString(found).simplified()));
    if (database.execAndGet("PRAGMA user_version").getInt() > fileVersion)
        refuse(path, u"it was written by a newer version of Kinbook."_s);
    for (const Table& table : allTables()) {
        const QString name = table.name;
        if (!database.tableExists(name.toStdString()))
            refuse(path, u"it is no Kinbook database, for it has no table '%1'."_s.arg(name));
    }
}

/// A journal left by a run that died belongs to the file that goes: left beside the new one it would be played into it.
void discardJournal(const QString& database) {
    for (const auto& ending : {u"-journal"_s, u"-wal"_s, u"-shm"_s}) {
        if (files::fileExists(database + ending)) files::deleteFile(database + ending, true);
    }
}

/// Where the live file lies: a link to it stays a link.
QString placeOf(const QString& live) {
    const QFileInfo info(live);
    return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

QString successorOf(const QString& live) {
    return live + u".new"_s;
}

/// A copy beside the live file that is to take its place, gone at the end unless it has.
class Successor {
public:
    explicit Successor(const QString& live) : live_(live), path_(successorOf(live)) { discard(); }
    ~Successor() { discard(); }
    Successor(const Successor&) = delete;
    Successor& operator=(const Successor&) = delete;

    [[nodiscard]] const QString& path() const { return path_; }

    void takePlace() const {
        if (::rename(QFile::encodeName(path_).constData(), QFile::encodeName(live_).constData()) != 0)
            files::throwSystemError(errno, 76);
        files::settleFolder(files::parentOf(live_));
    }

private:
    void discard() const { QFile::remove(path_); }

    QString live_;
    QString path_;
};

}  // namespace

QString companionFolder(const QString& databasePath) {
    const qsizetype nameAt = databasePath.lastIndexOf(files::separator()) + 1;
    const qsizetype dot = databasePath.lastIndexOf(u'.');
    if (dot < nameAt) throw RuntimeError(overflow);
    return databasePath.first(dot) + u"Attachments"_s;
}

double kilobytes(qint64 bytes) {
    return platform::roundHalfEven(static_cast<double>(bytes) / 1024, 2);
}

bool isSameFile(const QString& path, const QString& other) {
    return files::isSameFile(path, other);
}

void requireApart(const QString& folder, const QString& other) {
    if (files::isWithin(folder, other) || files::isWithin(other, folder)) throw RuntimeError(permissionDenied);
}

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

void replaceDatabase(const QString& source, const QString& live) {
    if (isSameFile(source, live)) throw RuntimeError(permissionDenied);
    checkDatabase(source);
    const QString place = placeOf(live);
    if (files::fileExists(place) && files::isReadOnly(place)) throw RuntimeError(permissionDenied);
    const Successor successor(place);
    files::copyFile(source, successor.path());
    // A backup on a medium that can't be written must not make a database that can't be.
    files::setReadOnly(successor.path(), false);
    discardJournal(place);
    successor.takePlace();
}

void discardUnfinishedRestore(const QString& live, const QString& attachments) {
    QFile::remove(successorOf(placeOf(live)));
    files::discardUnfinished(files::folderOf(live));
    files::discardUnfinished(attachments);
}

void emptyFolder(const QString& folder) {
    if (!files::folderExists(folder)) return;
    if (!files::entriesOf(folder).files.isEmpty()) files::deleteAllFiles(folder, true);
}

}  // namespace data
