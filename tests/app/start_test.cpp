#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>

#include "data/template.h"
#include "platform/base/files.h"
#include "platform/base/unfinished.h"
#include "tests/support/household.h"
#include "tests/support/ordinary_family.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace {

class Start : public support::Household {
protected:
    void loseDatabase() { QFile::remove(path(u"FamilyInfo.mdb"_s)); }
    void startWithoutDatabase() {
        user.start();
        EXPECT_TRUE(told().startsWith(u"Kinbook: No FamilyInfo database was found."_s));
        EXPECT_EQ(boxTitle(), u"Restore Database Confirmation"_s);
    }
};

struct BadDefinition {
    const char* what;
    QByteArray text;
    QString firstBox;
};

TEST_F(Start, ADefinitionFileThatDoesntReadEndsTheRunWithoutTouchingTheDatabase) {
    loseDatabase();
    const BadDefinition bad[] = {
        {"a line of no key", "CompanyName=x\r\nFoo=\r\n", u"Splash Screen Error"_s},
        {"a key in another case", "companyname=x\r\n", u"Splash Screen Error"_s},
        {"an empty last line", "Value=\r\n\r\n", u"Splash Screen Error"_s},
        {"seconds beyond 16 bits", "Splash=40000\r\n", QString()},
    };
    for (const BadDefinition& definition : bad) {
        SCOPED_TRACE(definition.what);
        write(u"SplashDef.txt"_s, definition.text);
        user.start();
        if (!definition.firstBox.isEmpty()) {
            EXPECT_EQ(dismissBox(), definition.firstBox);
        }
        EXPECT_EQ(dismissBox(), u"Missing Splash Screen Values"_s);
        EXPECT_FALSE(running());
    }
    QFile::remove(path(u"SplashDef.txt"_s));
    user.start();
    EXPECT_EQ(boxText(), path(u"SplashDef.txt"_s) + u" does not exist."_s);
    EXPECT_EQ(dismissBox(), u"No PDF File"_s);
    EXPECT_EQ(dismissBox(), u"Missing Splash Screen Values"_s);
}

TEST_F(Start, AValueKeepsItsEqualsSignsAndAMainPasswordMakesTheRunReadOnly) {
    write(u"SplashDef.txt"_s, "Splash=1\r\nVersion=a=b=\r\nValue=\xdd\xef\xf5\xe1\xf6\xf8\r\n");
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"LogIn"_s);
    user.fill(u"txtPassword"_s, u"secret"_s);
    user.click(u"cmdOK"_s);
    EXPECT_TRUE(user.session()["gbCanEdit"_L1].toBool());
    user.close();
    user.start();
    EXPECT_FALSE(user.session()["gbCanEdit"_L1].toBool());
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    EXPECT_TRUE(isLocked(u"Legal Name:"_s));
    EXPECT_FALSE(isEnabled(u"Was Adopted"_s));
    user.click(u"cmdEdit"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Login"_s);
    // An empty category can't be used, as nothing could be entered there; its node keeps the picture of the click.
    openNode(u"CDs"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Login"_s);
    EXPECT_EQ(image(u"CDs"_s), 2);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
    // Keys still count as changes, but nobody is asked about them.
    user.click(u"City:"_s);
    user.type(u"x"_s);
    user.click(u"cmdNext"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    user.close();
    EXPECT_FALSE(running());
}

TEST_F(Start, AFileThatIsNoDatabaseLeadsToTheRestoreAndNoEndsTheRun) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray(50'000, 'x')}) {
        write(u"FamilyInfo.mdb"_s, bytes);
        startWithoutDatabase();
        user.answer(u"No"_s);
        EXPECT_FALSE(running());
    }
}

TEST_F(Start, ARestoreThatIsGivenUpOrNamesNoFileEndsTheRun) {
    loseDatabase();
    startWithoutDatabase();
    user.answer(u"Yes"_s);
    EXPECT_EQ(user.dialog()["filter"_L1].toString(), u"Database Files (*.mdb)"_s);
    user.cancel();
    EXPECT_EQ(dismissBox(), u"No Database Name"_s);
    EXPECT_FALSE(running());

    startWithoutDatabase();
    user.answer(u"Yes"_s);
    user.choose(u"/nowhere/old.mdb"_s);
    EXPECT_EQ(told(), u"File Does Not Exist: /nowhere/old.mdb does not exist.  No database was opened."_s);
    EXPECT_FALSE(running());
    EXPECT_FALSE(QFile::exists(path(u"FamilyInfo.mdb"_s)));
}

TEST_F(Start, ARestoredDatabaseIsOpenedUnderItsUsualName) {
    addMembers({u"Ann Larkin"_s});
    QFile::rename(path(u"FamilyInfo.mdb"_s), path(u"My Old.mdb"_s));
    startWithoutDatabase();
    user.answer(u"Yes"_s);
    user.choose(path(u"My Old.mdb"_s));
    EXPECT_EQ(boxText(), u"Your database, My Old.mdb, has been restored as FamilyInfo.mdb, and is ready for use."_s);
    dismissBox();
    EXPECT_EQ(forms(), QStringList{u"MDIHost"_s});
    EXPECT_EQ(user.session()["gsDatabaseName"_L1].toString(), u"FamilyInfo.mdb"_s);
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    EXPECT_EQ(user.text(u"Legal Name:"_s), u"Ann Larkin"_s);
}

TEST_F(Start, ATreeThatCantBeCountedSaysWhyTheRunEnds) {
    addMembers({u"Ann Larkin"_s});
    user.start();
    exec(u"DROP TABLE CDs"_s);
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    EXPECT_TRUE(boxText().startsWith(u"-2147217865 - "_s)) << boxText().toStdString();
    EXPECT_EQ(boxIcon(), u"critical"_s);
    EXPECT_EQ(dismissBox(), u"SetImage Error"_s);
    EXPECT_FALSE(running());
}

TEST_F(Start, ALostTableIsReportedByTheScreenThatNeedsIt) {
    addMembers({u"Ann Larkin"_s});
    user.start();
    exec(u"DROP TABLE Attachments"_s);
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    EXPECT_TRUE(told().startsWith(u"SetNumAttachments Error: -2147217865 - "_s));
    EXPECT_EQ(user.text(u"Legal Name:"_s), u"Ann Larkin"_s);
}

TEST_F(Start, AFileThatIsNotOurBookIsNotStartedOnAndSaysWhatItLacks) {
    exec(u"ALTER TABLE Taxes DROP COLUMN Comment"_s);
    user.start();
    EXPECT_TRUE(
        boxText().startsWith(u"No FamilyInfo database was found.  You must restore a database in order to "
                             "proceed.\r\n\r\n"_s));
    EXPECT_TRUE(boxText().endsWith(u"its table 'Taxes' has no column 'Comment'."_s)) << boxText().toStdString();
    dismissBox();
    user.answer(u"No"_s);
    EXPECT_FALSE(running());
}

TEST_F(Start, AReplacedFileIsKeptBesideTheNewOne) {
    data::createTemplate(path(u"Good.mdb"_s));
    for (const QByteArray& bytes : {QByteArray("first"), QByteArray("second")}) {
        write(u"FamilyInfo.mdb"_s, bytes);
        startWithoutDatabase();
        user.answer(u"Yes"_s);
        user.choose(path(u"Good.mdb"_s));
        dismissBox();
        EXPECT_EQ(forms(), QStringList{u"MDIHost"_s});
        EXPECT_EQ(bytesOf(u"FamilyInfo.damaged.mdb"_s), bytes);
        user.close();
    }
    EXPECT_EQ(bytesOf(u"FamilyInfo.damaged.1.mdb"_s), "first");
    EXPECT_EQ(bytesOf(u"FamilyInfo.mdb"_s), bytesOf(u"Good.mdb"_s));
}

TEST_F(Start, AFileThatIsLockedOrMayNotBeReadIsNeverOfferedToBeReplaced) {
    {
        SQLite::Database other(path(u"FamilyInfo.mdb"_s).toStdString(), SQLite::OPEN_READWRITE);
        other.exec("BEGIN EXCLUSIVE");
        user.start();
        EXPECT_TRUE(boxText().endsWith(u"file already in use."_s)) << boxText().toStdString();
        EXPECT_EQ(dismissBox(), u"Main Error"_s);
        EXPECT_FALSE(running());
    }
    const QString live = path(u"FamilyInfo.mdb"_s);
    ASSERT_EQ(::chmod(qPrintable(live), 0), 0);
    {
        const support::OrdinaryFamily family(path({}));
        user.start();
        EXPECT_TRUE(boxText().endsWith(u"you do not have permission to read it."_s)) << boxText().toStdString();
        EXPECT_EQ(dismissBox(), u"Main Error"_s);
        EXPECT_FALSE(running());
    }
}

TEST_F(Start, AFileThatCanOnlyBeReadIsToldOnce) {
    addMembers({u"Ann Larkin"_s});
    const QString live = path(u"FamilyInfo.mdb"_s);
    for (const QString& locked : {live, path({})}) {
        const support::OrdinaryFamily family(path({}));
        const mode_t mode = files::folderExists(locked) ? 0755 : 0644;
        ASSERT_EQ(::chmod(qPrintable(locked), mode & ~0222U), 0);
        user.start();
        EXPECT_TRUE(boxText().contains(u"can only be read"_s)) << locked.toStdString();
        EXPECT_EQ(dismissBox(), u"Read-Only Database"_s);
        EXPECT_EQ(boxTitle(), QString());
        EXPECT_EQ(forms(), QStringList{u"MDIHost"_s});
        user.close();
        ASSERT_EQ(::chmod(qPrintable(locked), mode), 0);
    }
    user.start();
    EXPECT_EQ(boxTitle(), QString());
}

TEST_F(Start, WhatARunThatDiedLeftOfARestoreIsFinishedOrTold) {
    const QString companion = path(u"b/MonAttachments"_s);
    makeFolder(u"Attachments"_s);
    write(u"b/MonAttachments/new.txt"_s, "new");
    const QString half = u".kinbook-0123456789abcdef0123456789abcdef"_s;
    const struct {
        const char* what;
        bool isReplaced;
        QString companion;
        QString box;
        QStringList attachments;
    } cases[] = {
        {"before the database", false, companion, {}, {u"old.txt"_s}},
        {"after the database", true, companion, u"Restore Completed"_s, {u"new.txt"_s}},
        {"a fresh start", true, {}, u"Restore Completed"_s, {}},
        {"the stick is gone", true, path(u"gone/MonAttachments"_s), u"Restore Incomplete"_s, {u"old.txt"_s}},
    };
    for (const auto& [what, isReplaced, from, box, attachments] : cases) {
        SCOPED_TRACE(what);
        QFile::remove(path(u"Attachments/new.txt"_s));
        write(u"Attachments/old.txt"_s, "old");
        write(u"Attachments/"_s + half, "half");
        write(half, "half");
        if (!isReplaced) write(u"FamilyInfo.mdb.new"_s, "half");
        write(u"FamilyInfo.mdb.restoring"_s, from.toUtf8());
        user.start();
        if (!box.isEmpty()) {
            EXPECT_EQ(dismissBox(), box);
        }
        EXPECT_EQ(boxTitle(), QString());
        EXPECT_EQ(forms(), QStringList{u"MDIHost"_s});
        EXPECT_EQ(namesIn(u"Attachments"_s), attachments);
        EXPECT_EQ(namesIn({}), QStringList({u"Attachments"_s, u"FamilyInfo.mdb"_s, u"SplashDef.txt"_s, u"b"_s}));
        user.close();
    }
}

TEST_F(Start, ARunningRestoreOfAnotherRunIsLeftAlone) {
    write(u"FamilyInfo.mdb.new"_s, "half");
    write(u"FamilyInfo.mdb.restoring"_s, {});
    {
        const files::FolderClaim other(path({}));
        user.start();
        EXPECT_EQ(forms(), QStringList{u"MDIHost"_s});
        EXPECT_TRUE(QFile::exists(path(u"FamilyInfo.mdb.new"_s)));
        EXPECT_TRUE(QFile::exists(path(u"FamilyInfo.mdb.restoring"_s)));
        user.close();
    }
    user.start();
    EXPECT_FALSE(QFile::exists(path(u"FamilyInfo.mdb.new"_s)));
}

}  // namespace
