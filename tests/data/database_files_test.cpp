#include "data/database_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "data/book_check.h"
#include "data/book_replacement.h"
#include "data/template.h"
#include "hostile_disk.h"
#include "platform/base/files.h"
#include "platform/base/runtime_error.h"
#include "tests/support/database_file.h"
#include "tests/support/test_folder.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace {

/// The error that an action ends in, as a box shows it; empty for none.
template <typename Action>
QString errorOf(Action action) {
    try {
        action();
        return {};
    } catch (const platform::RuntimeError& error) {
        return error.report();
    }
}

/// Without a word about attached files, as after the last of them.
void replaceDatabase(const QString& source, const QString& live) {
    data::BookReplacement(live, {}, {}).replaceDatabase(source, {});
    QFile::remove(live + u".restoring"_s);
}

class DatabaseFiles : public testing::Test, protected support::TestFolder {
protected:
    [[nodiscard]] QString makeDatabase(const QString& name) const {
        data::createTemplate(path(name));
        return path(name);
    }
};

TEST(CompanionFolder, IsNamedAfterTheFileUpToItsLastDot) {
    const struct {
        QString path;
        QString companion;
    } cases[] = {
        {u"/b/Mon.mdb"_s, u"/b/MonAttachments"_s},
        {u"/b/2026.11.23.mdb"_s, u"/b/2026.11.23Attachments"_s},
        {u"/b.c/Mon.mdb"_s, u"/b.c/MonAttachments"_s},
        {u"/b/Größe 家.mdb"_s, u"/b/Größe 家Attachments"_s},
        {u"/b/Mon."_s, u"/b/MonAttachments"_s},
        {u"/b/.mdb"_s, u"/b/Attachments"_s},
        {u"Mon.mdb"_s, u"MonAttachments"_s},
        {u"/b/Mon"_s, {}},
        {u"/b.c/Mon"_s, {}},
    };
    for (const auto& [path, companion] : cases) {
        SCOPED_TRACE(path.toStdString());
        QString found;
        const QString error = errorOf([&] { found = data::companionFolder(path); });
        EXPECT_EQ(found, companion);
        EXPECT_EQ(error, companion.isEmpty() ? u"6 - Overflow"_s : QString());
    }
}

TEST_F(DatabaseFiles, FoldersThatHoldEachOtherAreNotApart) {
    makeFolder(u"app/Attachments"_s);
    QFile::link(path(u"app"_s), path(u"linkAttachments"_s));
    const QString live = path(u"app/Attachments"_s);
    for (const auto& near : {u"app/Attachments"_s, u"app"_s, u"app/Attachments/bAttachments"_s, u"linkAttachments"_s,
                             u"linkAttachments/Attachments"_s, u"app/../app/Attachments"_s})
        EXPECT_EQ(errorOf([&] { data::requireApart(path(near), live); }), u"70 - Permission denied"_s)
            << near.toStdString();
    for (const auto& apart : {u"app/FamilyInfoAttachments"_s, u"app/Attachments2"_s, u"none/Attachments"_s})
        EXPECT_EQ(errorOf([&] { data::requireApart(path(apart), live); }), QString()) << apart.toStdString();
}

TEST_F(DatabaseFiles, FoldersThatCannotBeFollowedAreRefused) {
    makeFolder(u"closed"_s);
    QFile::link(u"loop"_s, path(u"loop"_s));
    const auto outcome = [&](const QString& folder) {
        return errorOf([&] { data::requireApart(path(folder), path(u"Attachments"_s)); });
    };
    EXPECT_EQ(outcome(u"loop/x"_s), u"75 - Path/File access error"_s);
    EXPECT_EQ(outcome(QString(248, u'n') + u"Attachments"_s), u"75 - Path/File access error"_s);
    const QByteArray closed = path(u"closed"_s).toLocal8Bit();
    ASSERT_EQ(chmod(closed.constData(), 0), 0);
    {
        const OrdinaryUser user(path(), path(u"none"_s), false);
        EXPECT_EQ(outcome(u"closed/x"_s), u"70 - Permission denied"_s);
    }
    chmod(closed.constData(), 0700);
}

TEST_F(DatabaseFiles, AFileThatIsNotAWholeDatabaseIsRefusedInWordsThatSayWhy) {
    const QByteArray whole = bytesOf(makeDatabase(u"whole.mdb"_s));
    EXPECT_EQ(errorOf([&] { data::checkDatabase(path(u"whole.mdb"_s)); }), QString());
    const auto changed = [&](qsizetype at, const QByteArray& bytes) {
        return QByteArray(whole).replace(at, bytes.size(), bytes);
    };
    const struct {
        QByteArray bytes;
        const char* statements;
        QString reason;
    } cases[] = {
        {{}, "", u"the file is empty."_s},
        {QByteArray(50'000, 'x'), "", u"it is no Kinbook database."_s},
        {whole.first(60), "", u"it is no Kinbook database."_s},
        {whole.first(whole.size() / 2), "", u"it is cut short"_s},
        {whole.chopped(1), "", u"it is cut short"_s},
        {changed(8192, QByteArray(20'000, 'z')), "", u"it is damaged"_s},
        {changed(18, "\3\3"), "", u"it was written by a newer version of Kinbook."_s},
        {whole, "PRAGMA user_version = 7", u"it was written by a newer version of Kinbook."_s},
        {whole, "DROP TABLE Attachments", u"it is no Kinbook database, for it has no table 'Attachments'."_s},
        {whole, "ALTER TABLE CDs DROP COLUMN MaturityDate",
         u"it is no Kinbook database, for its table 'CDs' has no column 'MaturityDate'."_s},
        {whole, "DROP TABLE Person; CREATE VIRTUAL TABLE Person USING fts5(LegalName)",
         u"it is no Kinbook database, for it has no table 'Person'."_s},
        {whole,
         "DROP TABLE Person; CREATE VIEW Person AS WITH RECURSIVE n(ID) AS (SELECT 1 UNION ALL SELECT ID + 1 FROM n) "
         "SELECT ID, 'Ann' AS LegalName, 1 AS Seq FROM n",
         u"it is no Kinbook database, for it has no table 'Person'."_s},
    };
    const QString file = path(u"Her 100% ?#.mdb"_s);
    for (const auto& [bytes, statements, reason] : cases) {
        SCOPED_TRACE(reason.toStdString());
        write(file, bytes);
        if (*statements != 0) support::exec(file, QString::fromUtf8(statements));
        const QByteArray before = bytesOf(file);
        const QString error = errorOf([&] { data::checkDatabase(file); });
        EXPECT_TRUE(error.startsWith(u"-2147467259 - '%1' can't be used: %2"_s.arg(file, reason)))
            << error.toStdString();
        EXPECT_EQ(bytesOf(file), before);
    }
    EXPECT_EQ(errorOf([&] { data::checkDatabase(path(u"none.mdb"_s)); }), u"53 - File not found"_s);
}

TEST_F(DatabaseFiles, TheLiveFileIsReplacedAndKeepsNothingOfTheOldOne) {
    const QString source = makeDatabase(u"source.mdb"_s);
    support::exec(source, u"INSERT INTO Person (LegalName) VALUES ('New')"_s);
    files::setReadOnly(source);
    write(path(u"live.mdb"_s), "old");
    write(path(u"live.mdb-journal"_s), "of the old file");
    write(path(u"live.mdb.new"_s), "of a killed run");
    replaceDatabase(source, path(u"live.mdb"_s));
    EXPECT_EQ(bytesOf(path(u"live.mdb"_s)), bytesOf(source));
    EXPECT_FALSE(files::isReadOnly(path(u"live.mdb"_s)));
    EXPECT_EQ(namesIn(), QStringList({u"live.mdb"_s, u"source.mdb"_s}));
}

TEST_F(DatabaseFiles, TheLiveFileIsNotReplacedByItself) {
    const QString live = makeDatabase(u"live.mdb"_s);
    QFile::link(live, path(u"link.mdb"_s));
    ASSERT_EQ(::link(qPrintable(live), qPrintable(path(u"hard.mdb"_s))), 0);
    for (const auto& name : {u"live.mdb"_s, u"./live.mdb"_s, u"link.mdb"_s, u"hard.mdb"_s})
        EXPECT_EQ(errorOf([&] { replaceDatabase(path(name), live); }), u"70 - Permission denied"_s);
    EXPECT_EQ(errorOf([&] { data::checkDatabase(live); }), QString());
}

TEST_F(DatabaseFiles, AFailedReplacementLeavesTheOldFileAlone) {
    const QString source = makeDatabase(u"source.mdb"_s);
    files::setReadOnly(source);
    SmallDisk disk;
    const QString onDisk = disk.folder() + u"/live.mdb"_s;
    write(onDisk, "old");
    disk.fill();
    EXPECT_EQ(errorOf([&] { replaceDatabase(source, onDisk); }), u"61 - Disk full"_s);
    disk.makeRoom();
    EXPECT_EQ(bytesOf(onDisk), "old");
    EXPECT_EQ(QDir(disk.folder()).entryList(QDir::Files | QDir::Hidden), QStringList{u"live.mdb"_s});

    const QString locked = path(u"locked/live.mdb"_s);
    write(locked, "old");
    for (const bool folderOnly : {true, false}) {
        ASSERT_EQ(::chmod(qPrintable(path()), 0755), 0);
        const OrdinaryUser user(path(u"locked"_s), locked, folderOnly);
        EXPECT_EQ(errorOf([&] { replaceDatabase(source, locked); }), u"70 - Permission denied"_s);
    }
    EXPECT_EQ(bytesOf(locked), "old");
}

TEST_F(DatabaseFiles, ARunKilledWhileItReplacesLeavesOneOfTheTwoFilesWhole) {
    const QString first = makeDatabase(u"first.mdb"_s);
    const QString second = makeDatabase(u"second.mdb"_s);
    support::exec(second, u"INSERT INTO Person (LegalName) VALUES ('Second')"_s);
    const QString live = makeDatabase(u"live.mdb"_s);
    int interrupted = 0;
    // How long a copy takes is the machine's affair: it goes on until a kill has met one.
    for (int kill = 0; kill < 15 || (interrupted == 0 && kill < 300); ++kill) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        for (int i = 0; child == 0; ++i)
            replaceDatabase(i % 2 == 0 ? second : first, live);
        ::usleep(static_cast<useconds_t>(15'000 + kill % 40 * 1'700));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        interrupted += QFile::exists(live + u".new"_s) ? 1 : 0;
        const QByteArray found = bytesOf(live);
        EXPECT_TRUE(found == bytesOf(first) || found == bytesOf(second));
    }
    EXPECT_GT(interrupted, 0) << "no kill ever met a file half copied";
    data::BookReplacement(live, path(u"Attachments"_s), path(u"Backup"_s)).discardRemains();
    QFile::remove(live + u".restoring"_s);
    EXPECT_EQ(namesIn(), QStringList({u"first.mdb"_s, u"live.mdb"_s, u"second.mdb"_s}));
}

}  // namespace
