#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonObject>

#include "data/template.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class Start : public support::Household {
protected:
    void loseDatabase() { QFile::remove(path(u"FamilyInfo.mdb"_s)); }
    void startWithoutDatabase() {
        user.start();
        EXPECT_TRUE(boxText().startsWith(u"No FamilyInfo database was found."_s));
        EXPECT_EQ(dismissBox(), u"Kinbook"_s);
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
        writeFile(u"SplashDef.txt"_s, definition.text);
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
    writeFile(u"SplashDef.txt"_s, "Splash=1\r\nVersion=a=b=\r\nValue=\xdd\xef\xf5\xe1\xf6\xf8\r\n");
    addMembers({u"Ann Larkin"_s});
    user.start();
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    openNode(u"LogIn"_s);
    user.fill(u"txtPassword"_s, u"secret"_s);
    user.click(u"cmdOK"_s);
    EXPECT_TRUE(user.session()["gbCanEdit"_L1].toBool());
    user.close();
    user.start();
    EXPECT_FALSE(user.session()["gbCanEdit"_L1].toBool());
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    EXPECT_TRUE(user.control(u"txtFields(0)"_s)["locked"_L1].toBool());
    EXPECT_FALSE(user.control(u"chkFields(0)"_s)["enabled"_L1].toBool());
    user.click(u"cmdEdit"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Login"_s);
    // An empty category can't be used, as nothing could be entered there; its node keeps the picture of the click.
    openNode(u"CDs"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Login"_s);
    EXPECT_EQ(image(u"CDs"_s), 2);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
    // Keys still count as changes, but nobody is asked about them.
    user.click(u"txtFields(3)"_s);
    user.type(u"x"_s);
    user.click(u"cmdNext"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    user.close();
    EXPECT_FALSE(running());
}

TEST_F(Start, AFileThatIsNoDatabaseLeadsToTheRestoreAndNoEndsTheRun) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray(50'000, 'x')}) {
        writeFile(u"FamilyInfo.mdb"_s, bytes);
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
    EXPECT_EQ(boxText(), u"/nowhere/old.mdb does not exist.  No database was opened."_s);
    EXPECT_EQ(dismissBox(), u"File Does Not Exist"_s);
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
    EXPECT_EQ(user.text(u"txtFields(0)"_s), u"Ann Larkin"_s);
}

TEST_F(Start, ATreeThatCantBeCountedEndsTheRunWithoutABox) {
    exec(u"DROP TABLE CDs"_s);
    user.start();
    EXPECT_TRUE(user.dialog().isEmpty());
    EXPECT_FALSE(running());
}

TEST_F(Start, ALostTableIsReportedByTheScreenThatNeedsIt) {
    exec(u"DROP TABLE Attachments"_s);
    addMembers({u"Ann Larkin"_s});
    user.start();
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    EXPECT_TRUE(boxText().startsWith(u"-2147217865 - "_s));
    EXPECT_EQ(dismissBox(), u"SetNumAttachments Error"_s);
    EXPECT_EQ(user.text(u"txtFields(0)"_s), u"Ann Larkin"_s);
}

}  // namespace
