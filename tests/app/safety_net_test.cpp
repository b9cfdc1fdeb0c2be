#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QThread>

#include "data/cipher.h"
#include "data/template.h"
#include "platform/base/clock.h"
#include "platform/base/files.h"
#include "tests/data/hostile_disk.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace {

/// The family of Ann, with two attached files and a folder for backups.
class SafetyNet : public support::Household {
protected:
    SafetyNet() {
        // Today's copy is there: it is not what these tests are about.
        write(dailyCopy(), "today's");
        write(u"Attachments/FI_1.txt"_s, QByteArray(1000, 'a'));
        write(u"Attachments/FI_2.txt"_s, QByteArray(2000, 'b'));
        files::setReadOnly(path(u"Attachments/FI_1.txt"_s));
        data::createTemplate(path(u"FamilyInfo_Empty.mdb"_s));
        addMembers({u"Ann Larkin"_s});
    }

    static QString dailyCopy() {
        return u"Backup/Daily/FamilyInfo_%1.mdb"_s.arg(platform::systemClock().today().toString(Qt::ISODate));
    }
    /// Without their endings, the oldest first.
    [[nodiscard]] QStringList keptPairs() const {
        QStringList pairs = namesIn(u"Backup"_s).filter(QRegularExpression(u"^Before_[-_0-9]*\\.mdb$"_s));
        return pairs.replaceInStrings(u".mdb"_s, QString());
    }
    void startAfresh() {
        user.menu(u"mNew"_s);
        user.answer(u"Yes"_s);
        EXPECT_EQ(boxText(), u"Your database, FamilyInfo.mdb, has been created and is ready for use."_s);
        dismissBox();
    }
    void restore(const QString& source) {
        user.menu(u"mOpen"_s);
        user.answer(u"Yes"_s);
        user.choose(path(source));
        EXPECT_EQ(dismissBox(), u"Database Restored"_s);
    }
    void expectAnnsFiles(const QString& folder) const {
        ASSERT_EQ(namesIn(folder), QStringList({u"FI_1.txt"_s, u"FI_2.txt"_s}));
        EXPECT_EQ(bytesOf(folder + u"/FI_1.txt"_s), QByteArray(1000, 'a'));
        EXPECT_EQ(bytesOf(folder + u"/FI_2.txt"_s), QByteArray(2000, 'b'));
        EXPECT_TRUE(files::isReadOnly(path(folder + u"/FI_1.txt"_s)));
        EXPECT_FALSE(files::isReadOnly(path(folder + u"/FI_2.txt"_s)));
    }
};

TEST_F(SafetyNet, WhatNewAndRestoreReplaceComesBackWhole) {
    exec(u"INSERT INTO Attachments (BugNum, SeqNum, FileName, filePath) VALUES ('Kbk_1_0', 1, 'FI_1.txt', '%1')"_s.arg(
        path(u"Attachments/"_s)));
    user.start();
    exec(
        u"INSERT INTO PIN_Password (PersonID, Account, PIN_Password, Encrypted) VALUES (1, 'Bank', 'opensesame', 'PT')"_s);
    startAfresh();
    EXPECT_EQ(namesIn(u"Attachments"_s), QStringList());
    ASSERT_EQ(keptPairs().size(), 1);
    const QString ann = u"Backup/"_s + keptPairs()[0];
    EXPECT_FALSE(bytesOf(ann + u".mdb"_s).contains("opensesame"));
    const QByteArray records = bytesOf(ann + u".mdb"_s);
    expectAnnsFiles(ann + u"Attachments"_s);

    restore(ann + u".mdb"_s);
    EXPECT_EQ(bytesOf(u"FamilyInfo.mdb"_s), records);
    EXPECT_EQ(cell(u"SELECT PIN_Password FROM PIN_Password"_s), data::cipher(u"opensesame"_s));
    expectAnnsFiles(u"Attachments"_s);
    expectAnnsFiles(ann + u"Attachments"_s);
    // What the restore replaced is the fresh book, and it comes back as well.
    ASSERT_EQ(keptPairs().size(), 2);
    EXPECT_EQ(namesIn(u"Backup"_s).size(), 5);
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    EXPECT_EQ(user.text(u"lblAttachments"_s), u"Attachments:  1"_s);
    restore(u"Backup/"_s + keptPairs()[1] + u".mdb"_s);
    EXPECT_EQ(cell(u"SELECT count(*) FROM Person"_s), u"0"_s);
    EXPECT_EQ(namesIn(u"Attachments"_s), QStringList());
    expectAnnsFiles(u"Backup/"_s + keptPairs()[2] + u"Attachments"_s);
}

TEST_F(SafetyNet, ThreePairsStayAndWhatElseLiesThereToo) {
    const QStringList older{u"Before_2020-01-01_000000"_s, u"Before_2021-01-01_000000"_s,
                            u"Before_2022-01-01_000000"_s};
    for (const QString& name : older) {
        QFile::copy(path(u"FamilyInfo.mdb"_s), path(u"Backup/"_s + name + u".mdb"_s));
        makeFolder(u"Backup/"_s + name + u"Attachments"_s);
        write(u"Backup/"_s + name + u"Attachments/"_s + name, "attached");
        files::setReadOnly(path(u"Backup/"_s + name + u"Attachments/"_s + name));
    }
    const QStringList others{u"Before_2019-01-01_000000.mdb.txt"_s, u"Before_summer.mdb"_s, u"Mon.mdb"_s};
    for (const QString& name : others)
        write(u"Backup/"_s + name, "x");
    makeFolder(u"Backup/Before_2018-01-01_000000Attachments"_s);
    user.start();
    // The one that is restored from would be the first to go.
    restore(u"Backup/"_s + older[0] + u".mdb"_s);
    EXPECT_EQ(namesIn(u"Attachments"_s), QStringList{older[0]});
    for (int round = 0; round < 2; ++round) {
        const QStringList found = keptPairs();
        ASSERT_EQ(found.size(), 3);
        EXPECT_EQ(found[0], round == 0 ? older[1] : older[2]);
        for (const QString& name : {u"Before_2018-01-01_000000Attachments"_s, others[0], others[1], others[2]})
            EXPECT_TRUE(QFile::exists(path(u"Backup/"_s + name))) << name.toStdString();
        EXPECT_FALSE(QFile::exists(path(u"Backup/"_s + older[0] + u"Attachments"_s)));
        startAfresh();
    }
}

TEST_F(SafetyNet, IsThereOnlyWhereAFolderForItIs) {
    QDir(path(u"Backup"_s)).removeRecursively();
    user.start();
    startAfresh();
    EXPECT_FALSE(QFile::exists(path(u"Backup"_s)));
    EXPECT_EQ(namesIn(u"Attachments"_s), QStringList());
    user.close();
    // Nor where it has no room.
    SmallDisk disk;
    if (!disk.isMounted()) GTEST_SKIP() << "no disk of its own for the test";
    disk.fill();
    QFile::link(disk.folder(), path(u"Backup"_s));
    write(u"Attachments/FI_1.txt"_s, "a");
    user.start();
    startAfresh();
    EXPECT_EQ(namesIn(u"Attachments"_s), QStringList());
    EXPECT_EQ(namesIn(u"Backup"_s), QStringList({u"Daily"_s, u"filler"_s}));
}

TEST_F(SafetyNet, TheFirstStartOfADayCopiesTheDatabase) {
    for (const bool isFirst : {true, false}) {
        SCOPED_TRACE(isFirst);
        if (isFirst) {
            QDir(path(u"Backup/Daily"_s)).removeRecursively();
        } else {
            write(dailyCopy(), "today's first");
        }
        user.start();
        EXPECT_EQ(forms(), QStringList{u"MDIHost"_s});
        QElapsedTimer waited;
        waited.start();
        while (isFirst && !QFile::exists(path(dailyCopy())) && waited.elapsed() < 20'000)
            QThread::msleep(10);
        user.close();
        // The engine counts in the file's header how often it was written.
        constexpr int headerBytes = 100;
        EXPECT_EQ(bytesOf(dailyCopy()).mid(isFirst ? headerBytes : 0),
                  isFirst ? bytesOf(u"FamilyInfo.mdb"_s).mid(headerBytes) : "today's first");
        EXPECT_EQ(namesIn(u"Backup/Daily"_s).size(), 1);
    }
}

}  // namespace
