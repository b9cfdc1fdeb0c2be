#include "data/kept_book.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "data/book_replacement.h"
#include "data/template.h"
#include "hostile_disk.h"
#include "platform/base/files.h"
#include "tests/support/test_folder.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace {

/// A book of 1,200 KB of attached files, and one of 1,500 KB elsewhere that takes its place.
class KeptBooks : public testing::Test, protected support::TestFolder {
protected:
    KeptBooks() {
        data::createTemplate(path(u"Mon.mdb"_s));
        write(path(u"MonAttachments/new.txt"_s), QByteArray(1'500'000, 'n'));
    }
    void layOut(const QString& folder) const {
        data::createTemplate(folder + u"/FamilyInfo.mdb"_s);
        for (const auto& name : {u"a.txt"_s, u"b.txt"_s}) {
            write(folder + u"/Attachments/"_s + name, QByteArray(600'000, 'o'));
            files::setReadOnly(folder + u"/Attachments/"_s + name);
        }
    }
    void replaceIn(const QString& folder) const {
        data::BookReplacement book(folder + u"/FamilyInfo.mdb"_s, folder + u"/Attachments"_s, folder + u"/Backup"_s);
        book.replaceDatabase(path(u"Mon.mdb"_s), path(u"MonAttachments"_s));
        book.replaceAttachments();
        EXPECT_EQ(namesIn(folder + u"/Attachments"_s), QStringList{u"new.txt"_s});
        EXPECT_EQ(files::fileSize(folder + u"/Attachments/new.txt"_s), 1'500'000);
    }
};

TEST_F(KeptBooks, GiveWayWhereThereIsRoomForOneBookOnly) {
    struct {
        const char* what;
        int kilobytes;
        bool isKept;
    } const cases[] = {
        {"for both", 4500, true}, {"not for the new files", 3400, false}, {"not for the copy", 2700, false}};
    for (const auto& [what, kilobytes, isKept] : cases) {
        SCOPED_TRACE(what);
        const SmallDisk disk(kilobytes);
        if (!disk.isMounted()) GTEST_SKIP() << "no disk of its own for the test";
        layOut(disk.folder());
        QDir(disk.folder()).mkdir(u"Backup"_s);
        replaceIn(disk.folder());
        EXPECT_EQ(namesIn(disk.folder() + u"/Backup"_s).size(), isKept ? 2 : 0);
    }
}

TEST_F(KeptBooks, MayLieOnAnotherDisk) {
    struct {
        int kilobytes;
        int filesKept;
    } const cases[] = {{4000, 2}, {1500, 1}};
    for (const auto& [kilobytes, filesKept] : cases) {
        SCOPED_TRACE(kilobytes);
        const SmallDisk disk(kilobytes);
        if (!disk.isMounted()) GTEST_SKIP() << "no disk of its own for the test";
        const QTemporaryDir folder;
        layOut(folder.path());
        QFile::link(disk.folder(), folder.filePath(u"Backup"_s));
        replaceIn(folder.path());
        const QStringList names = namesIn(disk.folder());
        ASSERT_EQ(names.size(), 2);
        EXPECT_EQ(names[1], names[0].chopped(4) + u"Attachments"_s);
        const QStringList kept = namesIn(disk.folder() + u'/' + names[1]);
        EXPECT_EQ(kept.size(), filesKept);
        for (const QString& name : kept) {
            EXPECT_EQ(files::fileSize(disk.folder() + u'/' + names[1] + u'/' + name), 600'000);
            EXPECT_TRUE(files::isReadOnly(disk.folder() + u'/' + names[1] + u'/' + name));
        }
    }
}

TEST_F(KeptBooks, AreNeverAmongTheAttachedFilesAndAReplacementThatFailsLeavesNone) {
    const QTemporaryDir folder;
    layOut(folder.path());
    QDir(folder.path()).mkdir(u"Backup"_s);
    write(folder.filePath(u"short.mdb"_s), "short");
    data::BookReplacement book(folder.filePath(u"FamilyInfo.mdb"_s), folder.filePath(u"Attachments"_s),
                               folder.filePath(u"Backup"_s));
    EXPECT_ANY_THROW(book.replaceDatabase(folder.filePath(u"short.mdb"_s), {}));
    EXPECT_EQ(namesIn(folder.filePath(u"Backup"_s)), QStringList());
    EXPECT_EQ(namesIn(folder.filePath(u"Attachments"_s)), QStringList({u"a.txt"_s, u"b.txt"_s}));
    for (const auto& inside : {u"Attachments"_s, u"Attachments/sub"_s}) {
        QDir().mkpath(folder.filePath(inside));
        EXPECT_EQ(data::KeptBook::ofNow(folder.filePath(inside), folder.filePath(u"Attachments"_s)).name(), QString());
    }
}

}  // namespace
