#include "data/daily_copy.h"

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <QFileInfo>
#include <QRegularExpression>
#include <chrono>
#include <thread>

#include "data/book_check.h"
#include "data/database_files.h"
#include "data/engine_files.h"
#include "data/pin_secrets.h"
#include "platform/base/file_replacement.h"
#include "platform/base/files.h"
#include "platform/base/folder_entries.h"
#include "platform/base/runtime_error.h"
#include "platform/base/unexpected_error.h"
#include "platform/base/unfinished.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace files = platform::files;

namespace data {

namespace {

constexpr qsizetype copiesKept = 7;

/// A save waits for as long as these pages take, and no longer.
constexpr int pagesAtOnce = 64;

QString nameOf(QDate day) {
    return u"FamilyInfo_%1.mdb"_s.arg(day.toString(Qt::ISODate));
}

void goOnUnlessStopped(const std::stop_token& stop) {
    if (stop.stop_requested()) throw platform::RuntimeError(platform::Error::PathAccess);
}

SQLite::Database openSource(const QString& live) {
    return {QFileInfo(live).absoluteFilePath().toStdString(), SQLite::OPEN_READONLY, 0, engineFiles()};
}

/// Nobody else sees the copy yet, and it is flushed as a whole.
SQLite::Database openTarget(const QString& path) {
    SQLite::Database target(path.toStdString(), SQLite::OPEN_READWRITE, 0, engineFiles());
    target.exec("PRAGMA synchronous=OFF");
    target.tryExec("PRAGMA journal_mode=OFF");
    return target;
}

/// A save in between makes the engine begin again, so that all pages are of one state.
void copyPages(const QString& live, const QString& path, const std::stop_token& stop) {
    SQLite::Database source = openSource(live);
    SQLite::Database target = openTarget(path);
    SQLite::Backup backup(target, source);
    for (int result = SQLITE_OK; result != SQLITE_DONE; result = backup.executeStep(pagesAtOnce)) {
        goOnUnlessStopped(stop);
        if (result != SQLITE_OK) std::this_thread::sleep_for(10ms);
    }
}

void copyBook(const QString& live, const QString& target, const std::stop_token& stop) {
    files::FileReplacement copy(target);
    const unsigned mode = files::modeOf(live) & copy.usualMode();
    constexpr unsigned ownersAlone = 0600;
    copy.setMode(ownersAlone);
    copyPages(live, copy.path(), stop);
    encipherFile(copy.path());
    // Seven days of a damaged book would be no copy at all.
    checkDatabase(copy.path());
    goOnUnlessStopped(stop);
    copy.setMode(mode);
    copy.place();
    files::syncFolder(copy.folder());
}

void discardOldest(const QString& daily, const QString& made) {
    static const QRegularExpression ours(u"\\AFamilyInfo_\\d{4}-\\d\\d-\\d\\d\\.mdb\\z"_s);
    const QStringList names = files::entriesOf(daily).files.filter(ours);
    for (const QString& name : beyondNewest(names, copiesKept, {made}))
        files::deleteFile(files::join(daily, name), true);
}

}  // namespace

bool makeDailyCopy(const QString& live, const QString& backups, QDate today, const std::stop_token& stop) noexcept {
    return platform::passOver([&] {
        const QString daily = files::join(backups, u"Daily"_s);
        const QString target = files::join(daily, nameOf(today));
        if (!files::folderExists(backups) || files::isTaken(target)) return;
        files::makeFolder(daily);
        files::discardUnfinished(daily);
        copyBook(live, target, stop);
        discardOldest(daily, nameOf(today));
    });
}

}  // namespace data
