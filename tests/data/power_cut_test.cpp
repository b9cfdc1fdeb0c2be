#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QSet>
#include <QTemporaryDir>

#include "data/book_replacement.h"
#include "data/connection.h"
#include "data/database_files.h"
#include "data/recordset.h"
#include "data/template.h"
#include "platform/base/files.h"
#include "platform/base/folder_replacement.h"
#include "platform/base/text_writer.h"
#include "tests/support/watched_disk.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

// What a power cut leaves can't be tried here; that each step waits for the disk before the next one relies on it can.

namespace {

class PowerCut : public testing::Test {
protected:
    PowerCut() {
        data::createTemplate(path(u"FamilyInfo.mdb"_s));
        data::createTemplate(path(u"Mon.mdb"_s));
        for (const auto& name : {u"Attachments"_s, u"MonAttachments"_s}) {
            QDir(folder_.path()).mkdir(name);
            for (const auto& file : {u"/a.txt"_s, u"/b.txt"_s})
                files::copyFile(path(u"Mon.mdb"_s), path(name + file));
        }
    }
    [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }

    /// How many renames gave a file or folder its name; each when all of it was on the disk, and the name right after.
    static int expectFlushedRenames(const support::WatchedDisk& disk) {
        const QStringList all = disk.operations();
        QSet<QString> flushed;
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

    QTemporaryDir folder_;
};

TEST_F(PowerCut, NoFileBearsItsNameBeforeItIsOnTheDisk) {
    const support::WatchedDisk disk;
    data::BookReplacement book(path(u"FamilyInfo.mdb"_s), path(u"Attachments"_s));
    book.replaceDatabase(path(u"Mon.mdb"_s), path(u"MonAttachments"_s));
    book.replaceAttachments();
    const QString live = u"rename %1.new %1"_s.arg(path(u"FamilyInfo.mdb"_s));
    const QString note = path(u"FamilyInfo.mdb.restoring"_s);
    EXPECT_GT(disk.last(u"flush "_s + folder_.path(), disk.last(live)), 0) << "the note is there before the new file";
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
    EXPECT_GT(disk.last(u"flush "_s + folder_.path()), ended);
}

}  // namespace
