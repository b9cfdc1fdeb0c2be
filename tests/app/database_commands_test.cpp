#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QJsonObject>

#include "data/template.h"
#include "platform/base/files.h"
#include "tests/data/hostile_disk.h"
#include "tests/support/household.h"
#include "tests/support/ordinary_family.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace {

/// The family of Ann, with two attached files and a folder for backups.
class DatabaseCommands : public support::Household {
protected:
    DatabaseCommands() {
        makeFolder(u"b"_s);
        write(u"Attachments/FI_1.txt"_s, QByteArray(1000, 'a'));
        write(u"Attachments/FI_2.txt"_s, QByteArray(2000, 'b'));
        files::setReadOnly(path(u"Attachments/FI_1.txt"_s));
        data::createTemplate(path(u"FamilyInfo_Empty.mdb"_s));
        addMembers({u"Ann Larkin"_s});
    }

    void startWithAnn() { startFor(u"Ann Larkin"_s); }
    void backUp(const QString& target) {
        user.menu(u"mBackup"_s);
        user.choose(target);
        user.answer(u"Yes"_s);
    }
    void restore(const QString& source) {
        user.menu(u"mOpen"_s);
        user.answer(u"Yes"_s);
        user.choose(source);
    }
    [[nodiscard]] QString pointer() { return user.state()["pointer"_L1].toString(); }
    [[nodiscard]] double kilobytes() const {
        return static_cast<double>(files::fileSize(path(u"FamilyInfo.mdb"_s))) / 1024;
    }
    /// The session goes on over the old file, with no window but the host.
    void expectAnnIsThere() {
        EXPECT_EQ(pointer(), u"normal"_s);
        EXPECT_EQ(forms(), QStringList{u"MDIHost"_s});
        EXPECT_EQ(items(u"MDIHost.cbPerson"_s), QStringList({u"Whole Family"_s, u"Ann Larkin"_s}));
        EXPECT_EQ(user.session()["gsDatabasePath"_L1].toString(), path(u"FamilyInfo.mdb"_s));
        user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
        EXPECT_EQ(user.text(u"Legal Name:"_s), u"Ann Larkin"_s);
    }
};

TEST_F(DatabaseCommands, WhatWasBackedUpIsRestoredWithItsAttachments) {
    startWithAnn();
    user.tool(u"tbBackup"_s);
    const QJsonObject dialog = user.dialog();
    EXPECT_EQ(dialog["folder"_L1].toString(), path({}));
    EXPECT_EQ(dialog["filter"_L1].toString(), u"Database Files (*.mdb)"_s);
    EXPECT_EQ(dialog["file"_L1].toString(), u"FamilyInfoBackup.mdb"_s);
    EXPECT_EQ(dialog["mode"_L1].toString(), u"save"_s);
    user.cancel();
    dismissBox();
    makeFolder(u"Backup"_s);
    user.tool(u"tbBackup"_s);
    EXPECT_EQ(user.dialog()["folder"_L1].toString(), path(u"Backup"_s));
    // The name may be anything with a dot; an older backup's files of it go.
    makeFolder(u"b/Größe 1.2Attachments/sub"_s);
    write(u"b/Größe 1.2Attachments/old"_s, "old");
    const QString target = path(u"b/Größe 1.2.mdb"_s);
    user.choose(target);
    EXPECT_EQ(boxText(),
              u"Your backup database and attachments will require %1 kilobytes of space on your backup "
              "medium.  The backup will not be successful if you do not have sufficient space.\r\n\r\n"
              "Do you want to continue?"_s.arg(kilobytes() + 2.93));
    user.answer(u"Yes"_s);
    EXPECT_EQ(boxText(),
              u"Your backup database is:  %1\r\nIt contains %2 kilobytes.\r\n\r\nYour attachments are "
              "contained in: %3\r\nThere are 2.93 kilobytes of attachments. "_s.arg(target)
                  .arg(kilobytes())
                  .arg(path(u"b/Größe 1.2Attachments"_s)));
    EXPECT_EQ(pointer(), u"normal"_s);
    EXPECT_EQ(dismissBox(), u"Backup Database Information"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
    EXPECT_EQ(namesIn(u"b/Größe 1.2Attachments"_s), QStringList({u"FI_1.txt"_s, u"FI_2.txt"_s}));
    EXPECT_EQ(bytesOf(u"b/Größe 1.2.mdb"_s), bytesOf(u"FamilyInfo.mdb"_s));

    exec(u"DELETE FROM Person"_s);
    write(u"Attachments/FI_3.txt"_s, "later");
    user.tool(u"tbOpen"_s);
    EXPECT_EQ(boxText(),
              u"When you restore a database, the current database \r\nwill be destroyed.  If, for some "
              "reason, you are wanting \r\nto restore a database and not lose the current database, \r\n"
              "you must backup the current database before continuing \r\nthis restore function.\r\n\r\n"
              "Do you want to continue?"_s);
    user.answer(u"Yes"_s);
    user.choose(target);
    EXPECT_EQ(boxText(),
              u"Your database, Größe 1.2.mdb, has been restored as \r\nFamilyInfo.mdb, and is ready for "
              "use."_s);
    EXPECT_EQ(dismissBox(), u"Database Restored"_s);
    expectAnnIsThere();
    EXPECT_EQ(namesIn(u"Attachments"_s), QStringList({u"FI_1.txt"_s, u"FI_2.txt"_s}));
    EXPECT_EQ(bytesOf(u"Attachments/FI_2.txt"_s), QByteArray(2000, 'b'));
    EXPECT_TRUE(files::isReadOnly(path(u"Attachments/FI_1.txt"_s)));
}

TEST_F(DatabaseCommands, AFreshStartEmptiesTheFamilyAndItsAttachments) {
    user.start();
    user.menu(u"mNew"_s);
    EXPECT_TRUE(
        boxText().startsWith(u"Starting with a fresh database will destroy the database you have created thus "
                             "far.  If you want"_s));
    user.answer(u"No"_s);
    EXPECT_EQ(dismissBox(), u"No Changes Made"_s);
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    QFile::rename(path(u"FamilyInfo_Empty.mdb"_s), path(u"away"_s));
    user.tool(u"tbNew"_s);
    user.answer(u"Yes"_s);
    EXPECT_EQ(boxText(), path(u"FamilyInfo_Empty.mdb"_s) + u" does not exist."_s);
    EXPECT_EQ(dismissBox(), u"File Not Found"_s);
    EXPECT_EQ(pointer(), u"hourglass"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
    QFile::rename(path(u"away"_s), path(u"FamilyInfo_Empty.mdb"_s));
    // An empty folder is none the worse for being emptied.
    for (int round = 0; round < 2; ++round) {
        user.menu(u"mNew"_s);
        user.answer(u"Yes"_s);
        EXPECT_EQ(told(), u"Kinbook: Your database, FamilyInfo.mdb, has been created and is ready for use."_s);
        EXPECT_EQ(pointer(), u"normal"_s);
        EXPECT_EQ(forms(), QStringList{u"MDIHost"_s});
        EXPECT_EQ(items(u"MDIHost.cbPerson"_s), QStringList{u"Whole Family"_s});
        EXPECT_EQ(namesIn(u"Attachments"_s), QStringList());
    }
    EXPECT_EQ(cell(u"SELECT count(*) FROM Person"_s), u"0"_s);
    EXPECT_EQ(bytesOf(u"FamilyInfo.mdb"_s), bytesOf(u"FamilyInfo_Empty.mdb"_s));
}

TEST_F(DatabaseCommands, WithoutAUsableNameNothingIsCopied) {
    const QByteArray before = bytesOf(u"FamilyInfo.mdb"_s);
    user.start();
    user.menu(u"mBackup"_s);
    user.cancel();
    EXPECT_EQ(told(), u"No Database Name: No database name was selected for the backup database."_s);
    for (const auto& name : {u"b/Mon"_s, u"b.c/Mon"_s}) {
        makeFolder(QFileInfo(name).path());
        user.menu(u"mBackup"_s);
        user.choose(path(name));
        EXPECT_EQ(told(), u"BackupDB Error: 6 - Overflow"_s);
        EXPECT_FALSE(QFile::exists(path(name)));
        restore(path(name));
        EXPECT_EQ(told(), u"OpenDB Error: 6 - Overflow"_s);
        EXPECT_EQ(pointer(), u"normal"_s);
    }
    restore(path(u"b/none.mdb"_s));
    EXPECT_EQ(boxText(), path(u"b/none.mdb"_s) + u" does not exist.  No database was opened."_s);
    EXPECT_EQ(dismissBox(), u"File Does Not Exist"_s);
    EXPECT_EQ(pointer(), u"hourglass"_s);
    // Without a name the session has no database that could be backed up, until the next restore.
    restore({});
    EXPECT_EQ(told(), u"No Database Name: No database name was selected to restore."_s);
    EXPECT_EQ(user.session()["gsDatabasePath"_L1].toString(), QString());
    user.menu(u"mBackup"_s);
    user.choose(path(u"b/Mon.mdb"_s));
    EXPECT_EQ(dismissBox(), u"No Source Database"_s);
    EXPECT_EQ(bytesOf(u"FamilyInfo.mdb"_s), before);
    EXPECT_EQ(namesIn(u"b"_s), QStringList());
}

TEST_F(DatabaseCommands, ABackupClearsAwayWhatAnEarlierOneLeftAndNothingElse) {
    const QString left = u"b/.kinbook-0123456789abcdef0123456789abcdef"_s;
    makeFolder(left + u"/sub"_s);
    write(left + u"/FI_1.txt"_s, "old");
    files::setReadOnly(path(left + u"/FI_1.txt"_s));
    const QStringList others{u"b/.kinbook-notes"_s, u"b/.kinbook-my letters to the tax office no1"_s,
                             u"b/kinbook-0123456789abcdef0123456789abcdef"_s};
    for (const QString& other : others)
        write(other + u"/letter.txt"_s, "kept");
    startWithAnn();
    backUp(path(u"b/Mon.mdb"_s));
    EXPECT_EQ(dismissBox(), u"Backup Database Information"_s);
    EXPECT_FALSE(files::folderExists(path(left)));
    for (const QString& other : others)
        EXPECT_EQ(bytesOf(other + u"/letter.txt"_s), "kept") << other.toStdString();
}

TEST_F(DatabaseCommands, ADiskThatCanOnlyBeReadBehindARestoreIsTold) {
    const QString target = path(u"b/Mon.mdb"_s);
    const support::OrdinaryFamily family(path({}));
    startWithAnn();
    backUp(target);
    dismissBox();
    restore(target);
    // As a failing disk does, it takes no more once all is written.
    ASSERT_EQ(::chmod(qPrintable(path({})), 0555), 0);
    EXPECT_EQ(dismissBox(), u"Database Restored"_s);
    EXPECT_TRUE(boxText().contains(u"can only be read"_s)) << boxText().toStdString();
    EXPECT_EQ(dismissBox(), u"Read-Only Database"_s);
    EXPECT_EQ(boxTitle(), QString());
    ASSERT_EQ(::chmod(qPrintable(path({})), 0755), 0);
}

TEST_F(DatabaseCommands, ARefusedRestoreLeavesTheOldFileOpen) {
    const QByteArray whole = bytesOf(u"FamilyInfo.mdb"_s);
    write(u"b/short.mdb"_s, whole.chopped(4096));
    write(u"b/foreign.mdb"_s, QByteArray(9000, 'x'));
    write(u"b/empty.mdb"_s, {});
    write(u"Attachments/inside.mdb"_s, whole);
    // Its companion folder would be the live one.
    write(u".mdb"_s, whole);
    startWithAnn();
    const struct {
        QString name;
        QString words;
    } cases[] = {
        {u"b/short.mdb"_s, u"it is cut short"_s},
        {u"b/foreign.mdb"_s, u"it is no Kinbook database"_s},
        {u"b/empty.mdb"_s, u"the file is empty"_s},
        {u"FamilyInfo.mdb"_s, u"70 - Permission denied"_s},
        {u"Attachments/inside.mdb"_s, u"70 - Permission"_s},
        {u".mdb"_s, u"70 - Permission denied"_s},
    };
    for (const auto& [name, words] : cases) {
        SCOPED_TRACE(name.toStdString());
        restore(path(name));
        EXPECT_TRUE(boxText().contains(words)) << boxText().toStdString();
        EXPECT_EQ(dismissBox(), u"OpenDB Error"_s);
        expectAnnIsThere();
        EXPECT_EQ(bytesOf(u"FamilyInfo.mdb"_s), whole);
        EXPECT_EQ(namesIn(u"Attachments"_s), QStringList({u"FI_1.txt"_s, u"FI_2.txt"_s, u"inside.mdb"_s}));
    }
    write(u"FamilyInfo_Empty.mdb"_s, "damaged");
    user.menu(u"mNew"_s);
    user.answer(u"Yes"_s);
    EXPECT_EQ(dismissBox(), u"NewDB Error"_s);
    expectAnnIsThere();
}

TEST_F(DatabaseCommands, ABackupNeverTouchesTheLiveFiles) {
    const QByteArray whole = bytesOf(u"FamilyInfo.mdb"_s);
    write(u"b.c"_s, "x");
    startWithAnn();
    // Also when the session's database isn't the live one, as after a restore of a name without a dot.
    for (const QString& source : {QString(), path(u"SplashDef"_s)}) {
        if (!source.isEmpty()) {
            QFile::copy(path(u"SplashDef.txt"_s), source);
            restore(source);
            dismissBox();
        }
        for (const auto& target : {u"FamilyInfo.mdb"_s, u".mdb"_s, u"Attachments/x.mdb"_s}) {
            SCOPED_TRACE(target.toStdString());
            user.menu(u"mBackup"_s);
            user.choose(path(target));
            if (source.isEmpty()) {
                user.answer(u"Yes"_s);
                EXPECT_EQ(told(), u"BackupDB Error: 70 - Permission denied"_s);
            } else {
                EXPECT_EQ(told(), u"No Source Database: The original database does not exist."_s);
            }
            EXPECT_EQ(pointer(), u"normal"_s);
            EXPECT_EQ(bytesOf(u"FamilyInfo.mdb"_s), whole);
            EXPECT_EQ(namesIn(u"Attachments"_s), QStringList({u"FI_1.txt"_s, u"FI_2.txt"_s}));
        }
    }
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
}

TEST_F(DatabaseCommands, ABackupThatFindsNoRoomOrNoRightLeavesTheOlderOneWhole) {
    startWithAnn();
    SmallDisk disk;
    const QString target = disk.folder() + u"/B.mdb"_s;
    {
        QFile older(target);
        ASSERT_TRUE(older.open(QIODevice::WriteOnly) && older.write("older") == 5);
    }
    disk.fill();
    backUp(target);
    EXPECT_EQ(told(), u"BackupDB Error: 61 - Disk full"_s);
    EXPECT_EQ(files::fileSize(target), 5);
    disk.makeRoom();

    user.menu(u"mBackup"_s);
    user.choose(path(u"b/Mon.mdb"_s));
    user.answer(u"No"_s);
    EXPECT_EQ(told(), u"No Backup: No data was saved."_s);
    EXPECT_EQ(namesIn(u"b"_s), QStringList());
    backUp(path(u"none/Mon.mdb"_s));
    EXPECT_EQ(told(), u"BackupDB Error: 76 - Path not found"_s);
    // A file in the way of the companion folder.
    write(u"b/MonAttachments"_s, "x");
    backUp(path(u"b/Mon.mdb"_s));
    EXPECT_EQ(dismissBox(), u"SaveAttachments"_s);
    EXPECT_EQ(dismissBox(), u"BackupDB Error"_s);
    EXPECT_EQ(bytesOf(u"b/Mon.mdb"_s), bytesOf(u"FamilyInfo.mdb"_s));
}

TEST_F(DatabaseCommands, SizesThatDifferAndMissingFoldersAreTold) {
    user.start();
    backUp(path(u"b/Mon.mdb"_s));
    EXPECT_EQ(dismissBox(), u"Backup Database Information"_s);
    // One of the backup's files can't be read.
    ASSERT_EQ(::chmod(qPrintable(path(u"b/MonAttachments/FI_2.txt"_s)), 0), 0);
    {
        const support::OrdinaryFamily family(path({}));
        restore(path(u"b/Mon.mdb"_s));
        EXPECT_EQ(told(), u"CopyAttachments: 70 - Permission denied"_s);
    }
    EXPECT_TRUE(told().startsWith(u"Backup Failure: Your data was not completely copied.  There was"_s));
    expectAnnIsThere();
    EXPECT_EQ(namesIn(u"Attachments"_s), QStringList{u"FI_1.txt"_s});
}

TEST_F(DatabaseCommands, ARestoreBringsTheFilesBackWhateverLiesInTheirPlace) {
    user.start();
    backUp(path(u"b/Mon.mdb"_s));
    EXPECT_EQ(dismissBox(), u"Backup Database Information"_s);
    const auto empty = [this] {
        QFile::remove(path(u"Attachments/FI_1.txt"_s)), QFile::remove(path(u"Attachments/FI_2.txt"_s));
    };
    const std::function<void()> before[] = {[] {}, empty, [&] { empty(), QDir(path({})).rmdir(u"Attachments"_s); }};
    for (const auto& prepare : before) {
        prepare();
        restore(path(u"b/Mon.mdb"_s));
        EXPECT_EQ(dismissBox(), u"Database Restored"_s);
        EXPECT_EQ(namesIn(u"Attachments"_s), QStringList({u"FI_1.txt"_s, u"FI_2.txt"_s}));
        EXPECT_EQ(bytesOf(u"Attachments/FI_2.txt"_s), QByteArray(2000, 'b'));
    }
    // A family without attached files: its backup is whole, and brings none back.
    empty();
    QDir(path({})).rmdir(u"Attachments"_s);
    backUp(path(u"b/Tue.mdb"_s));
    EXPECT_TRUE(boxText().contains(u"There are 0 kilobytes of attachments. "_s)) << boxText().toStdString();
    EXPECT_EQ(dismissBox(), u"Backup Database Information"_s);
    EXPECT_EQ(namesIn(u"b/TueAttachments"_s), QStringList());
    restore(path(u"b/Tue.mdb"_s));
    EXPECT_EQ(dismissBox(), u"Database Restored"_s);
    EXPECT_EQ(namesIn(u"Attachments"_s), QStringList());
}

TEST_F(DatabaseCommands, AnOldBackupsFilesGoOnlyWhenTheNewOnesAreThere) {
    startWithAnn();
    backUp(path(u"b/Mon.mdb"_s));
    dismissBox();
    // Of the same size, but not to be read.
    write(u"Attachments/FI_2.txt"_s, QByteArray(2000, 'c'));
    ASSERT_EQ(::chmod(qPrintable(path(u"Attachments/FI_2.txt"_s)), 0), 0);
    {
        const support::OrdinaryFamily family(path({}));
        backUp(path(u"b/Mon.mdb"_s));
        EXPECT_EQ(told(), u"SaveAttachments: 70 - Permission denied"_s);
        EXPECT_EQ(dismissBox(), u"Backup Failure"_s);
    }
    EXPECT_EQ(bytesOf(u"b/MonAttachments/FI_2.txt"_s), QByteArray(2000, 'b'));
    EXPECT_EQ(namesIn(u"b"_s), QStringList({u"Mon.mdb"_s, u"MonAttachments"_s}));
    ASSERT_EQ(::chmod(qPrintable(path(u"Attachments/FI_2.txt"_s)), 0644), 0);
    backUp(path(u"b/Mon.mdb"_s));
    EXPECT_EQ(dismissBox(), u"Backup Database Information"_s);
    EXPECT_EQ(bytesOf(u"b/MonAttachments/FI_2.txt"_s), QByteArray(2000, 'c'));
    EXPECT_EQ(namesIn(u"b"_s), QStringList({u"Mon.mdb"_s, u"MonAttachments"_s}));
}

TEST_F(DatabaseCommands, NobodyGetsToReadABookThatHeMayNotReadNow) {
    const auto mode = [this](const QString& name) { return files::modeOf(path(name)); };
    ASSERT_EQ(::chmod(qPrintable(path(u"FamilyInfo.mdb"_s)), 0600), 0);
    user.start();
    backUp(path(u"b/Mon.mdb"_s));
    dismissBox();
    EXPECT_EQ(mode(u"b/Mon.mdb"_s), 0600U);
    ASSERT_EQ(::chmod(qPrintable(path(u"b/Mon.mdb"_s)), 0644), 0);
    restore(path(u"b/Mon.mdb"_s));
    dismissBox();
    EXPECT_EQ(mode(u"FamilyInfo.mdb"_s), 0600U);
    user.menu(u"mNew"_s);
    user.answer(u"Yes"_s);
    dismissBox();
    EXPECT_EQ(mode(u"FamilyInfo.mdb"_s), 0600U);
    ASSERT_EQ(::chmod(qPrintable(path(u"FamilyInfo.mdb"_s)), 0644), 0);
    const mode_t before = ::umask(077);
    backUp(path(u"b/Tue.mdb"_s));
    ::umask(before);
    dismissBox();
    EXPECT_EQ(mode(u"b/Tue.mdb"_s), 0600U);
}

TEST_F(DatabaseCommands, SecretsOfAnOpenListAreEncipheredBeforeItsFileIsClosed) {
    startWithAnn();
    openNode(u"PINsPasswords"_s);
    user.fill(u"txtPassword"_s, {});
    user.click(u"cmdOK"_s);
    user.click(u"cmdAdd"_s);
    user.fill(u"txtSequence"_s, u"1"_s);
    user.fill(u"txtAccount"_s, u"Bank"_s);
    user.fill(u"txtPINPass"_s, u"secret"_s);
    user.click(u"cmdOK"_s);
    EXPECT_EQ(cell(u"SELECT PIN_Password FROM PIN_Password"_s), u"secret"_s);
    restore(path(u"FamilyInfo.mdb"_s));
    EXPECT_EQ(dismissBox(), u"OpenDB Error"_s);
    EXPECT_EQ(cell(u"SELECT hex(PIN_Password) FROM PIN_Password"_s), u"C39DC3AFC3B5C3A1C3B6C3B8"_s);
    expectAnnIsThere();
}

TEST_F(DatabaseCommands, AWindowWhoseChangesAreKeptStopsTheRestore) {
    const QByteArray whole = bytesOf(u"FamilyInfo.mdb"_s);
    startWithAnn();
    user.click(u"City:"_s);
    user.type(u"x"_s);
    restore(path(u"FamilyInfo_Empty.mdb"_s));
    EXPECT_EQ(boxTitle(), u"Close Confirmation"_s);
    user.answer(u"No"_s);
    EXPECT_TRUE(user.dialog().isEmpty());
    EXPECT_EQ(pointer(), u"normal"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
    EXPECT_EQ(user.session()["gsDatabaseName"_L1].toString(), u"FamilyInfo.mdb"_s);
    EXPECT_EQ(bytesOf(u"FamilyInfo.mdb"_s), whole);
}

}  // namespace
