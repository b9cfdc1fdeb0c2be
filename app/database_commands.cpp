#include "app/database_commands.h"

#include "app/family_selector.h"
#include "app/open_windows.h"
#include "app/read_only_file.h"
#include "app/restore_source.h"
#include "data/book_replacement.h"
#include "data/database_files.h"
#include "data/pin_secrets.h"
#include "platform/base/conversions.h"
#include "platform/base/file_identity.h"
#include "platform/base/files.h"
#include "platform/base/folder_replacement.h"
#include "platform/base/runtime_error.h"
#include "platform/base/unfinished.h"
#include "platform/forms/desktop.h"
#include "session/book_files.h"
#include "session/session.h"

using namespace Qt::StringLiterals;
using platform::Icon;
using platform::numberText;
using platform::Pointer;
using platform::RuntimeError;
namespace files = platform::files;

namespace app {

namespace {

double fileKilobytes(const QString& path) {
    return data::kilobytes(files::fileSize(path));
}

double folderKilobytes(const QString& folder) {
    return data::kilobytes(files::folderSize(folder));
}

double folderKilobytesIfAny(const QString& folder) {
    return files::folderExists(folder) ? folderKilobytes(folder) : 0;
}

}  // namespace

DatabaseCommands::DatabaseCommands(platform::Desktop& desktop, session::Session& session, FamilySelector& selector,
                                   OpenWindows& windows)
    : desktop_(desktop), session_(session), selector_(selector), windows_(windows) {}

QString DatabaseCommands::attachments() const {
    return session_.path(u"Attachments"_s);
}

void DatabaseCommands::attempt(const QString& title, const std::function<void()>& routine) {
    replacing_ = false;
    platform::Desktop::attempt(routine, [&](const RuntimeError& error) {
        desktop_.setPointer(Pointer::Default);
        desktop_.notice(error.report(), title, Icon::Critical);
        if (replacing_ && session_.gConnection.isOpen()) selector_.loadFamily();
    });
}

// New --------------------------------------------------------------------------------------------------------------

void DatabaseCommands::newDB() {
    attempt(u"NewDB Error"_s, [this] {
        if (confirmFreshStart()) startFresh();
    });
}

bool DatabaseCommands::confirmFreshStart() {
    const bool goesOn = desktop_.ask(
        u"Starting with a fresh database will destroy the database you have created thus far.  If you want to save "
        "your current database, you should use the Backup function to save your current database before you continue "
        "with this process.\r\n\r\n"
        "NOTE also that you must clear your password if you have set one on your current database before you start "
        "this new database.  If you do not clear your password you will be locked out of your new database.  Do you "
        "still want to continue?"_s,
        u"Fresh Start Confirmation"_s, platform::Buttons::NoYes);
    if (!goesOn) {
        desktop_.notice(
            u"No changes were made to your existing database.  It is recommended that you backup your existing "
            "database by using the Backup function before starting fresh unless you know that your existing database "
            "is worthless."_s,
            u"No Changes Made"_s);
    }
    return goesOn;
}

void DatabaseCommands::startFresh() {
    desktop_.setPointer(Pointer::Hourglass);
    const QString source = session_.path(u"FamilyInfo_Empty.mdb"_s);
    if (!files::fileExists(source)) {
        desktop_.notice(source + u" does not exist."_s, u"File Not Found"_s);
        return;
    }
    if (!closeWindows()) return;
    data::BookReplacement book = replacement();
    replaceLive(book, source, {});
    book.replaceAttachments();
    desktop_.setPointer(Pointer::Default);
    desktop_.notice(u"Your database, "_s + session_.gsDatabaseName + u", has been created and is ready for use."_s);
    selector_.loadFamily();
}

// Restore ----------------------------------------------------------------------------------------------------------

void DatabaseCommands::openDB() {
    attempt(u"OpenDB Error"_s, [this] {
        if (confirmRestore()) restore();
    });
}

bool DatabaseCommands::confirmRestore() {
    return desktop_.ask(
        u"When you restore a database, the current database \r\n"
        "will be destroyed.  If, for some reason, you are wanting \r\n"
        "to restore a database and not lose the current database, \r\n"
        "you must backup the current database before continuing \r\n"
        "this restore function.\r\n\r\n"
        "Do you want to continue?"_s,
        u"Restore Database Confirmation"_s, platform::Buttons::NoYes);
}

void DatabaseCommands::restore() {
    const QString chosen = chooseRestoreSource(desktop_, session_);
    if (chosen.isEmpty()) {
        tellNoRestoreSource(desktop_);
        selector_.selectWholeName();
        return;
    }
    desktop_.setPointer(Pointer::Hourglass);
    const QString companion = data::companionFolder(chosen);
    Sizes expected{.attachments = folderKilobytesIfAny(companion)};
    if (!restoreSourceExists(desktop_, chosen)) return;
    expected.database = fileKilobytes(chosen);
    if (!closeWindows()) return;
    // Taking the old attachments away must not take the backup's.
    data::requireApart(companion, attachments());
    data::BookReplacement book = replacement();
    replaceLive(book, chosen, companion);
    const bool whole = copyAttachments(book);
    const Sizes copied{fileKilobytes(session_.gsDatabasePath), folderKilobytes(attachments())};
    desktop_.setPointer(Pointer::Default);
    if (whole && copied == expected) {
        desktop_.notice(u"Your database, "_s + files::nameOf(chosen) + u", has been restored as \r\n"_s +
                            session::Session::liveDatabaseName() + u", and is ready for use."_s,
                        u"Database Restored"_s);
    } else {
        tellIncomplete();
    }
    selector_.loadFamily();
    tellIfReadOnly(desktop_, session_);
}

bool DatabaseCommands::copyAttachments(data::BookReplacement& book) {
    return desktop_.attempt(u"CopyAttachments"_s, [&book] { book.replaceAttachments(); });
}

// Replacing the live file ------------------------------------------------------------------------------------------

bool DatabaseCommands::closeWindows() {
    session_.useLiveDatabase();
    windows_.unloadAll();
    // Who won't give up what he has typed doesn't want another file under it.
    const bool closed = desktop_.count() == 1;
    // A window that goes leaves a normal pointer behind.
    desktop_.setPointer(closed ? Pointer::Hourglass : Pointer::Default);
    replacing_ = closed;
    return closed;
}

data::BookReplacement DatabaseCommands::replacement() const {
    return {session_.gsDatabasePath, attachments(), session_.path(u"Backup"_s)};
}

void DatabaseCommands::replaceLive(data::BookReplacement& book, const QString& source, const QString& companion) {
    if (session_.gConnection.isOpen()) session_.gConnection.close();
    platform::Desktop::attempt([&] { book.replaceDatabase(source, companion); },
                               [&](const RuntimeError& failure) {
                                   platform::Desktop::passOver([this] { openLive(); });
                                   throw failure;
                               });
    openLive();
}

void DatabaseCommands::openLive() {
    session_.gConnection.open(session_.gsDatabasePath);
}

// Backup -----------------------------------------------------------------------------------------------------------

void DatabaseCommands::backupDB() {
    attempt(u"BackupDB Error"_s, [this] { backup(); });
}

QString DatabaseCommands::chooseTarget() {
    const QString usual = session_.path(u"Backup"_s);
    return desktop_.dialogs().fileDialog({.mode = platform::FileRequest::Mode::Save,
                                          .folder = files::folderExists(usual) ? usual : session_.applicationFolder,
                                          .filterText = u"Database Files (*.mdb)"_s,
                                          .filterPattern = u"*.mdb"_s,
                                          .fileName = u"FamilyInfoBackup.mdb"_s});
}

bool DatabaseCommands::confirmBackup(const Sizes& sizes) {
    const bool goesOn = desktop_.ask(
        u"Your backup database and attachments will require "_s + numberText(sizes.database + sizes.attachments) +
            u" kilobytes of space on your backup medium.  The backup will not be successful if you do "
            "not have sufficient space.\r\n\r\nDo you want to continue?"_s,
        u"Backup Database Size Requirements"_s);
    if (!goesOn) desktop_.notice(u"No data was saved."_s, u"No Backup"_s);
    return goesOn;
}

void DatabaseCommands::backup() {
    const QString target = chooseTarget();
    if (target.isEmpty()) {
        desktop_.notice(u"No database name was selected for the backup database."_s, u"No Database Name"_s);
        selector_.selectWholeName();
        return;
    }
    const QString companion = data::companionFolder(target);
    Sizes expected{.attachments = folderKilobytesIfAny(attachments())};
    const QString source = session_.gsDatabasePath;
    // After a refused restore the session's database is the refused file.
    if (!files::isSameFile(source, session_.path(session::Session::liveDatabaseName()))) {
        desktop_.notice(u"The original database does not exist."_s, u"No Source Database"_s);
        return;
    }
    expected.database = fileKilobytes(source);
    if (!confirmBackup(expected)) return;
    desktop_.setPointer(Pointer::Hourglass);
    session::BookFiles{session_.applicationFolder}.refuse(target);
    data::requireApart(companion, attachments());
    files::discardUnfinished(files::folderOf(target));
    expected.database = data::kilobytes(data::backUpDatabase(source, target));
    const bool whole = saveAttachments(target);
    const Sizes copied{fileKilobytes(target), folderKilobytes(companion)};
    desktop_.setPointer(Pointer::Default);
    if (!whole || copied != expected) return tellIncomplete();
    desktop_.notice(u"Your backup database is:  "_s + target + u"\r\nIt contains "_s + numberText(copied.database) +
                        u" kilobytes.\r\n\r\nYour attachments are contained in: "_s + companion + u"\r\nThere are "_s +
                        numberText(copied.attachments) + u" kilobytes of attachments. "_s,
                    u"Backup Database Information"_s);
}

bool DatabaseCommands::saveAttachments(const QString& target) {
    return desktop_.attempt(u"SaveAttachments"_s, [&] {
        files::FolderReplacement companion(data::companionFolder(target));
        if (files::folderExists(attachments())) files::copyFolder(attachments(), companion.path());
        companion.place();
    });
}

// Refusals ---------------------------------------------------------------------------------------------------------

void DatabaseCommands::tellIncomplete() {
    desktop_.notice(
        u"Your data was not completely copied.  There was probably not enough space on your backup disk.  Make more "
        "space available by deleting some files on your disk and try again."_s,
        u"Backup Failure"_s, Icon::Critical);
}

}  // namespace app
