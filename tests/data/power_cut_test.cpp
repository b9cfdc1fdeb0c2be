#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QSet>

#include "data/book_replacement.h"
#include "data/connection.h"
#include "data/database_files.h"
#include "data/recordset.h"
#include "data/template.h"
#include "platform/base/files.h"
#include "platform/base/folder_replacement.h"
#include "platform/base/runtime_error.h"
#include "platform/base/text_writer.h"
#include "platform/base/unfinished.h"
#include "tests/support/test_folder.h"
#include "tests/support/watched_disk.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

// What a power cut leaves can't be tried here; that each step waits for the disk before the next one relies on it can.

namespace {

class PowerCut : public testing::Test, protected support::TestFolder {
protected:
    PowerCut() {
        data::createTemplate(path(u"FamilyInfo.mdb"_s));
        data::createTemplate(path(u"Mon.mdb"_s));
        for (const auto& name : {u"Attachments"_s, u"MonAttachments"_s}) {
            makeFolder(name);
            for (const auto& file : {u"/a.txt"_s, u"/b.txt"_s})
                files::copyFile(path(u"Mon.mdb"_s), path(name + file));
        }
    }
    /// Of the books kept in the folder of backups.
    [[nodiscard]] QStringList keptNames() const {
        return namesIn(u"Backup"_s).filter(u".mdb"_s).replaceInStrings(u".mdb"_s, QString());
    }
    [[nodiscard]] data::BookReplacement book() const {
        return {path(u"FamilyInfo.mdb"_s), path(u"Attachments"_s), path(u"Backup"_s)};
    }
    void replaceByMonday() const {
        data::BookReplacement running = book();
        running.replaceDatabase(path(u"Mon.mdb"_s), path(u"MonAttachments"_s));
        running.replaceAttachments();
    }
    void layOldBookOut(const QByteArray& database) const {
        for (const auto& folder : {u"Attachments"_s, u"Backup"_s}) {
            QDir(path(folder)).removeRecursively();
            QDir().mkdir(path(folder));
        }
        write(u"FamilyInfo.mdb"_s, database);
        for (const auto& file : {u"a.txt"_s, u"old.txt"_s}) {
            write(u"Attachments/"_s + file, "old");
            files::setReadOnly(path(u"Attachments/"_s + file));
        }
    }
    /// False for a run that came to its end before.
    [[nodiscard]] bool diesAfter(int operations) const {
        constexpr int atTheEnd = 7;
        const pid_t child = ::fork();
        if (child == 0) {
            support::WatchedDisk disk;
            disk.dieAfter(operations);
            replaceByMonday();
            ::_exit(atTheEnd);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status) != atTheEnd;
    }
    /// What the next start does.
    void finish() const {
        data::BookReplacement found = book();
        found.discardRemains();
        if (found.isUnfinished()) found.replaceAttachments();
    }

    /// How many renames gave a file or folder its name; each when all of it was on the disk, and the name right after.
    /// `before`: what lay on the disk already.
    static int expectFlushedRenames(const support::WatchedDisk& disk, QSet<QString> before = {}) {
        const QStringList all = disk.operations();
        QSet<QString> flushed = std::move(before);
        int renames = 0;
        for (qsizetype i = 0; i < all.size(); ++i) {
            const QStringList words = all[i].split(u' ');
            if (words[0] == u"write"_s) flushed.remove(words[1]);
            if (words[0] == u"flush"_s) flushed.insert(words[1]);
            if (words[0] != u"rename"_s) continue;
            ++renames;
            EXPECT_TRUE(flushed.contains(words[1])) << qPrintable(all[i]);
            EXPECT_GT(disk.last(u"flush "_s + words[2].section(u'/', 0, -2)), i) << qPrintable(all[i]);
            flushed.insert(words[2]);
        }
        return renames;
    }
};

TEST_F(PowerCut, NoFileBearsItsNameBeforeItIsOnTheDisk) {
    const support::WatchedDisk disk;
    data::BookReplacement book(path(u"FamilyInfo.mdb"_s), path(u"Attachments"_s), {});
    book.replaceDatabase(path(u"Mon.mdb"_s), path(u"MonAttachments"_s));
    book.replaceAttachments();
    const QString live = u"rename %1.new %1"_s.arg(path(u"FamilyInfo.mdb"_s));
    const QString note = path(u"FamilyInfo.mdb.restoring"_s);
    EXPECT_GT(disk.last(u"flush "_s + path(), disk.last(live)), 0) << "the note is there before the new file";
    EXPECT_GT(disk.last(u"remove "_s + note), disk.last(u"flush "_s + path(u"Attachments"_s)));

    files::copyFile(path(u"FamilyInfo.mdb"_s), path(u"Tue.mdb"_s));
    for (int round = 0; round < 2; ++round) {
        files::FolderReplacement companion(path(u"TueAttachments"_s));
        files::copyFolder(path(u"Attachments"_s), companion.path());
        companion.place();
    }
    // The copy and the name of the live file, its note, two files; the backup and twice two files in their folder.
    EXPECT_EQ(expectFlushedRenames(disk), 5 + 1 + 2 * 3);
}

TEST_F(PowerCut, ABookThatIsKeptBearsItsNameWhenItIsOnTheDisk) {
    makeFolder(u"Backup"_s);
    const support::WatchedDisk disk;
    replaceByMonday();
    const QString kept = u"Backup/"_s + keptNames().value(0);
    const QSet<QString> attached{path(u"Attachments/a.txt"_s), path(u"Attachments/b.txt"_s)};
    // Five as without it; the kept database, its two files, their folder.
    EXPECT_EQ(expectFlushedRenames(disk, attached), 5 + 4);
    const qsizetype switched = disk.last(u"rename %1.new %1"_s.arg(path(u"FamilyInfo.mdb"_s)));
    EXPECT_GT(disk.last(u"flush "_s + path(u"Backup"_s), switched), 0) << "the old database is safe before it goes";
    EXPECT_GT(disk.last(u"flush "_s + path(kept + u"Attachments.moving"_s)), switched);
    EXPECT_TRUE(QFile::exists(path(kept + u"Attachments/a.txt"_s)));
}

TEST_F(PowerCut, WhereverARunDiesOneBookIsLiveAndTheOtherOneCanBeRestored) {
    makeFolder(u"Backup"_s);
    SQLite::Database(path(u"Mon.mdb"_s).toStdString(), SQLite::OPEN_READWRITE)
        .exec("INSERT INTO Person (LegalName) VALUES ('Monday')");
    const QByteArray old = bytesOf(u"FamilyInfo.mdb"_s);
    const QByteArray monday = bytesOf(u"Mon.mdb"_s);
    int begun = 0;
    bool over = false;
    for (int operations = 0; !over; ++operations) {
        SCOPED_TRACE(operations);
        layOldBookOut(old);
        over = !diesAfter(operations);
        finish();
        const bool isMonday = bytesOf(u"FamilyInfo.mdb"_s) == monday;
        EXPECT_TRUE(isMonday || bytesOf(u"FamilyInfo.mdb"_s) == old);
        const QStringList mondays{u"a.txt"_s, u"b.txt"_s};
        const QStringList olds{u"a.txt"_s, u"old.txt"_s};
        EXPECT_EQ(namesIn(u"Attachments"_s), isMonday ? mondays : olds);
        EXPECT_EQ(namesIn({}).filter(u"FamilyInfo"_s), QStringList{u"FamilyInfo.mdb"_s});
        const QStringList kept = keptNames();
        ASSERT_EQ(kept.size(), isMonday ? 1 : 0);
        EXPECT_EQ(namesIn(u"Backup"_s).size(), kept.size() * 2);
        if (!isMonday) continue;
        ++begun;
        EXPECT_EQ(bytesOf(u"Backup/"_s + kept[0] + u".mdb"_s), old);
        EXPECT_EQ(namesIn(u"Backup/"_s + kept[0] + u"Attachments"_s), olds);
        EXPECT_EQ(bytesOf(u"Backup/"_s + kept[0] + u"Attachments/a.txt"_s), "old");
    }
    EXPECT_GT(begun, 10) << "no death ever met the files on their way";
}

TEST_F(PowerCut, AFileThatDoesNotReachTheDiskIsToldAndTakesNoOldOnesPlace) {
    makeFolder(u"many"_s);
    makeFolder(u"target"_s);
    constexpr int oneBatch = 128;
    QStringList names;
    for (int i = 0; i <= oneBatch; ++i) {
        names << QString::number(1000 + i);
        write(u"many/"_s + names.back(), "new");
    }
    write(u"target/1002"_s, "old");
    support::WatchedDisk disk;
    disk.failFlushAfter(2);
    try {
        files::copyAllFiles(path(u"many"_s), path(u"target"_s));
        ADD_FAILURE() << "nobody is told";
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.error(), platform::Error::DeviceFailure);
    }
    // The others of its batch are there, whole; those behind it were not begun.
    names.removeLast();
    EXPECT_EQ(namesIn(u"target"_s), names);
    EXPECT_EQ(bytesOf(u"target/1002"_s), "old");
    EXPECT_EQ(bytesOf(u"target/1003"_s), "new");
    EXPECT_EQ(disk.operations().filter(u"rename "_s).size(), oneBatch - 1);
}

TEST_F(PowerCut, AnOldFolderThatCannotBeRemovedGoesWithTheNextBackup) {
    const auto backUp = [&] {
        files::FolderReplacement companion(path(u"TueAttachments"_s));
        files::copyFolder(path(u"Attachments"_s), companion.path());
        companion.place();
    };
    backUp();
    write(u"TueAttachments/old.txt"_s, "old");
    const QStringList before = namesIn({});
    {
        support::WatchedDisk disk;
        disk.refuseRemovals();
        backUp();
    }
    EXPECT_EQ(namesIn({}).size(), before.size() + 1) << "the test leaves nothing behind";
    EXPECT_EQ(namesIn(u"TueAttachments"_s), namesIn(u"Attachments"_s)) << "the new one is whole";
    files::discardUnfinished(path());
    EXPECT_EQ(namesIn({}), before);
}

TEST_F(PowerCut, ASavedTextIsOnTheDiskWithItsName) {
    const support::WatchedDisk disk;
    files::TextWriter file(path(u"all.txt"_s));
    file.writeLine(u"one"_s);
    file.close();
    EXPECT_EQ(expectFlushedRenames(disk), 1);
}

TEST_F(PowerCut, ASaveWaitsForTheDiskAtEachStep) {
    const QString live = path(u"FamilyInfo.mdb"_s);
    data::Connection connection;
    connection.open(live);
    data::Recordset rows(data::Opening::Screen);
    rows.open(u"Select * from Person"_s, connection);
    const support::WatchedDisk disk;
    rows.addNew();
    rows.setValue(u"LegalName"_s, u"Ann"_s);
    rows.update();
    const QString journal = live + u"-journal"_s;
    const qsizetype written = disk.last(u"write "_s + live);
    const qsizetype flushed = disk.last(u"flush "_s + live);
    const qsizetype ended = disk.last(u"remove "_s + journal);
    EXPECT_GT(disk.last(u"flush "_s + journal, disk.operations().indexOf(u"write "_s + live)), 0);
    EXPECT_GT(flushed, written);
    EXPECT_GT(ended, flushed);
    EXPECT_GT(disk.last(u"flush "_s + path()), ended);
}

}  // namespace
