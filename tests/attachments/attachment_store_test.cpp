#include "attachments/attachment_store.h"

#include <gtest/gtest.h>
#include "data/connection.h"
#include "platform/base/files.h"
#include "tests/attachments/application_folder.h"
#include "tests/data/hostile_disk.h"
#include "tests/platform/error_number.h"
#include "tests/support/database_file.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace attachments {

namespace {

class StoreTest : public testing::Test {
protected:
    StoreTest() { connection.open(folder.database()); }

    void attach(const QString& source, const QString& description = {}) {
        Attachment stored = store.storeFile(source);
        stored.fileDesc = description;
        store.addRow(stored);
    }
    [[nodiscard]] QStringList names() {
        QStringList found;
        for (const Attachment& row : store.attachments())
            found.append(u"%1 %2"_s.arg(row.fileName).arg(row.seqNum));
        return found;
    }
    static int errorOf(const std::function<void()>& operation) {
        return platform::test::errorNumber([&] { return operation(), 0; });
    }

    ApplicationFolder folder;
    data::Connection connection;
    AttachmentStore store{connection, folder.path(), u"Hom_3_17"_s};
};

TEST_F(StoreTest, NumbersTheFilesOfARecord) {
    const QString deed = folder.source(u"deed.pdf"_s);
    for (int i = 0; i < 3; ++i)
        attach(deed);
    EXPECT_EQ(names(), (QStringList{u"Hom_3_17_0.pdf 1"_s, u"Hom_3_17_2.pdf 2"_s, u"Hom_3_17_3.pdf 3"_s}));
    store.remove(u"Hom_3_17_2.pdf"_s);
    attach(deed);
    EXPECT_EQ(names().last(), u"Hom_3_17_4.pdf 4"_s);
    for (const QString& name : {u"Hom_3_17_0.pdf"_s, u"Hom_3_17_3.pdf"_s, u"Hom_3_17_4.pdf"_s})
        store.remove(name);
    EXPECT_TRUE(folder.storedNames().isEmpty());
    attach(deed);
    EXPECT_EQ(names(), QStringList(u"Hom_3_17_0.pdf 1"_s));
}

TEST_F(StoreTest, PassesOverNamesThatAreTaken) {
    const QString deed = folder.source(u"deed.pdf"_s);
    attach(deed);
    // A file that lost its row, and a row that lost its file.
    store.remove(u"Hom_3_17_0.pdf"_s);
    QFile::copy(deed, folder.stored(u"Hom_3_17_0.pdf"_s));
    AttachmentStore other(connection, folder.path(), u"Mar_1_1"_s);
    Attachment strange = other.storeFile(deed);
    QFile::rename(folder.stored(strange.fileName), folder.stored(u"Hom_3_17_1.pdf"_s));
    strange.fileName = u"Hom_3_17_1.pdf"_s;
    other.addRow(strange);
    QFile::remove(folder.stored(strange.fileName));
    attach(deed);
    EXPECT_EQ(names(), QStringList(u"Hom_3_17_2.pdf 1"_s));
    EXPECT_EQ(folder.storedNames(), (QStringList{u"Hom_3_17_0.pdf"_s, u"Hom_3_17_2.pdf"_s}));
}

TEST_F(StoreTest, KeepsWhateverNameAFileHas) {
    const QString longName = QString(251, u'n') + u".txt"_s;
    const struct {
        QString source, stored, type;
    } cases[] = {
        {u"a scan of it.jpeg"_s, u"Hom_3_17_0jpeg"_s, u"peg"_s},
        {u"letter"_s, u"Hom_3_17_0tter"_s, u"ter"_s},
        {u"abc"_s, u"Hom_3_17_0abc"_s, u"abc"_s},
        {u"größe.ä漢ü"_s, u"Hom_3_17_0.ä漢ü"_s, u"ä漢ü"_s},
        {u"x\U0001F600.ab"_s, u"Hom_3_17_0\U0001F600.ab"_s, u".ab"_s},
        {longName, u"Hom_3_17_0.txt"_s, u"txt"_s},
    };
    for (const auto& [name, stored, type] : cases) {
        attach(folder.source(name, name.toUtf8()), u"It's Ann's"_s);
        const std::vector<Attachment> rows = store.attachments();
        ASSERT_EQ(rows.size(), 1u) << name.toStdString();
        EXPECT_EQ(rows[0].fileName, stored);
        EXPECT_EQ(rows[0].fileType, type);
        EXPECT_EQ(rows[0].fileDesc, u"It's Ann's"_s);
        EXPECT_EQ(rows[0].oldFileName, name);
        EXPECT_EQ(folder.contentOf(folder.stored(stored)), name.toUtf8());
        EXPECT_TRUE(files::isReadOnly(folder.stored(stored)));
        store.remove(stored);
        EXPECT_FALSE(QFile::exists(folder.stored(stored)));
    }
}

TEST_F(StoreTest, StoresEmptyAndLargeFiles) {
    attach(folder.source(u"empty.txt"_s, {}));
    EXPECT_EQ(files::fileSize(folder.stored(u"Hom_3_17_0.txt"_s)), 0);
    const QByteArray scan(20 << 20, 's');
    attach(folder.source(u"scan.img"_s, scan + "end"));
    EXPECT_TRUE(folder.contentOf(folder.stored(u"Hom_3_17_2.img"_s)) == scan + "end");
}

TEST_F(StoreTest, LeavesNothingBehindAFailure) {
    EXPECT_EQ(errorOf([&] { attach(folder.path() + u"/gone.txt"_s); }), 53);
    EXPECT_EQ(errorOf([&] { attach(folder.path()); }), 53);
    EXPECT_TRUE(folder.storedNames().isEmpty());
    // A folder in the place of the file, and then a table that takes no row.
    QDir().mkpath(folder.stored(u"Hom_3_17_0.txt"_s));
    EXPECT_EQ(errorOf([&] { attach(folder.source(u"a.txt"_s)); }), 70);
    EXPECT_EQ(folder.storedNames(), QStringList(u"Hom_3_17_0.txt"_s));
    QDir().rmdir(folder.stored(u"Hom_3_17_0.txt"_s));
    const Attachment stored = store.storeFile(folder.source(u"a.txt"_s));
    data::Recordset().open(u"Drop Table Attachments"_s, connection);
    EXPECT_NE(errorOf([&] { store.addRow(stored); }), 0);
    EXPECT_TRUE(folder.storedNames().isEmpty());
}

TEST_F(StoreTest, TellsOfAFullDisk) {
    SmallDisk disk;
    AttachmentStore onDisk(connection, disk.folder(), u"Hom_3_17"_s);
    onDisk.addRow(onDisk.storeFile(folder.source(u"a.txt"_s)));
    disk.fill();
    const QString big = folder.source(u"b.txt"_s, QByteArray(300000, 'x'));
    EXPECT_EQ(errorOf([&] { onDisk.addRow(onDisk.storeFile(big)); }), 61);
    const auto all = QDir::Files | QDir::Hidden;
    EXPECT_EQ(QDir(disk.folder() + u"/Attachments"_s).entryList(all), QStringList(u"Hom_3_17_0.txt"_s));
    EXPECT_EQ(names(), QStringList(u"Hom_3_17_0.txt 1"_s));
}

TEST_F(StoreTest, TouchesNoFileThatANameFromElsewhereLeadsTo) {
    attach(folder.source(u"a.txt"_s));
    const QString outside = folder.source(u"outside.txt"_s);
    QFile::link(outside, folder.stored(u"link.txt"_s));
    QDir().mkpath(folder.stored(u"sub"_s));
    QFile::copy(outside, folder.stored(u"sub/inner.txt"_s));
    EXPECT_FALSE(store.isStored(u"Hom_3_17_0.txt"_s + QChar(0) + u"x"_s));
    const QStringList strange{u"../FamilyInfo.mdb"_s, u".."_s,         outside,           u"link.txt"_s, u"sub"_s,
                              u"sub/inner.txt"_s,     u"x' or ''='"_s, QString(300, u'n')};
    for (const QString& name : strange) {
        EXPECT_FALSE(store.isStored(name)) << name.toStdString();
        support::exec(folder.database(),
                      u"INSERT INTO Attachments (FileName, BugNum, SeqNum) VALUES ('%1', 'Hom_3_17', 9)"_s.arg(
                          QString(name).replace(u'\'', u"''"_s)));
    }
    EXPECT_EQ(names().size(), 1 + strange.size());
    for (const QString& name : strange) {
        const auto before = names().size();
        store.remove(name);
        EXPECT_EQ(names().size(), before - 1) << name.toStdString();
    }
    EXPECT_TRUE(QFile::exists(outside));
    EXPECT_TRUE(QFile::exists(folder.database()));
    EXPECT_EQ(folder.storedNames(), (QStringList{u"Hom_3_17_0.txt"_s, u"link.txt"_s, u"sub"_s}));
    EXPECT_TRUE(QFile::exists(folder.stored(u"sub/inner.txt"_s)));
    EXPECT_TRUE(names().contains(u"Hom_3_17_0.txt 1"_s));
}

TEST_F(StoreTest, RemovesTheRowOfAFileThatIsGone) {
    attach(folder.source(u"a.txt"_s));
    QFile::remove(folder.stored(u"Hom_3_17_0.txt"_s));
    store.remove(u"Hom_3_17_0.txt"_s);
    EXPECT_TRUE(names().isEmpty());
}

}  // namespace

}  // namespace attachments
