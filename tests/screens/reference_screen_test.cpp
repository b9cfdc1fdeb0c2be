#include <gtest/gtest.h>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class ReferenceScreen : public support::Household {
protected:
    void startWithDoctors(const QStringList& names) {
        for (const QString& name : names)
            exec(u"INSERT INTO Doctors (Name, State) VALUES ('%1', 'Ohio')"_s.arg(name));
        addMembers({u"Ann Larkin"_s});
        startFor(u"Ann Larkin"_s);
    }
};

TEST_F(ReferenceScreen, TheSelectorListsEveryNameAndGoesToTheFirstOfEqualOnes) {
    startWithDoctors({u"Moss"_s, u"Adams"_s, u"Moss"_s});
    openNode(u"Doctors"_s);
    EXPECT_EQ(focus(), u"txtFields(0)"_s);
    EXPECT_EQ(selected(u"txtFields(0)"_s), 5);
    EXPECT_EQ(items(u"cbSelect"_s), (QStringList{u"Adams"_s, u"Moss"_s, u"Moss"_s}));
    user.click(u"cmdLast"_s);
    user.pick(u"cbSelect"_s, u"Moss"_s);
    EXPECT_EQ(status(), u"Record: 2 of 3"_s);
    EXPECT_EQ(attachKey(), u"Doc_1_"_s + user.text(u"txtID"_s));
    EXPECT_EQ(user.text(u"State:"_s), u"Ohio"_s);
}

TEST_F(ReferenceScreen, TypingInTheSelectorIsNoChangeAndAPickNeverLosesOne) {
    startWithDoctors({u"Adams"_s, u"Moss"_s});
    openNode(u"Doctors"_s);
    user.fill(u"cbSelect"_s, u"anything"_s);
    user.click(u"cmdNext"_s);
    EXPECT_EQ(status(), u"Record: 2 of 2"_s);
    user.fill(u"Clinic:"_s, u"typed"_s);
    for (const QString& button : {QString(), u"cmdEdit"_s}) {
        if (!button.isEmpty()) user.click(button);
        user.pick(u"cbSelect"_s, u"Adams"_s);
        EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
        EXPECT_EQ(user.text(u"cbSelect"_s), u"Moss"_s);
        EXPECT_EQ(user.text(u"Clinic:"_s), u"typed"_s);
    }
    save(u"Doctor:"_s, u"Aaron"_s);
    EXPECT_EQ(items(u"cbSelect"_s), (QStringList{u"Aaron"_s, u"Adams"_s}));
}

TEST_F(ReferenceScreen, ADeletedNameLeavesTheSelectorAndWithoutARowNothingIsPrintedOrAttached) {
    startWithDoctors({u"Adams"_s, u"Moss"_s});
    openNode(u"Doctors"_s);
    user.setPrinter(path(u"doctors.pdf"_s));
    deleteRecord();
    EXPECT_EQ(items(u"cbSelect"_s), QStringList{u"Moss"_s});
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
    user.tool(u"tbPrint"_s);
    EXPECT_EQ(user.jobs().size(), 1);
    deleteRecord();
    EXPECT_EQ(dismissBox(), u"Delete Error"_s);
    EXPECT_EQ(items(u"cbSelect"_s), QStringList());
    for (const QString& key : {u"tbPrint"_s, u"tbSave"_s, u"tbAttach"_s}) {
        user.forgetNoises();
        user.tool(key);
        EXPECT_EQ(user.state()["beeps"_L1].toInt(), 1);
        EXPECT_EQ(boxTitle(), QString()) << key.toStdString();
    }
    user.tool(u"tbPrintAll"_s);
    while (!boxTitle().isEmpty())
        dismissBox();
    EXPECT_TRUE(user.jobs().isEmpty());
}

TEST_F(ReferenceScreen, AnEmptyTableBeginsInAnAddThatNeedsAName) {
    startWithDoctors({});
    openNode(u"Contacts"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(told(), u"No Contact Name: No contact name has been entered.  No contact record can be created."_s);
    user.fill(u"Contact:"_s, u"Plumber"_s);
    user.pick(u"State:"_s, u"Texas"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(cell(u"SELECT Name||State FROM Contacts"_s), u"PlumberTexas"_s);
    EXPECT_EQ(items(u"cbSelect"_s), QStringList{u"Plumber"_s});
    EXPECT_EQ(attachKey(), u"Con_1_1"_s);
}

TEST_F(ReferenceScreen, TheCoverPageKnowsNoChanges) {
    startWithDoctors({});
    user.menu(u"mCoverPage"_s);
    EXPECT_EQ(dismissBox(), u"No Cover Page Info"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(dismissBox(), u"No Main Heading"_s);
    save(u"Main Heading:"_s, u"The Larkins"_s);
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
    user.fill(u"Sub Heading 1:"_s, u"typed"_s);
    openNode(u"Birth"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
    user.menu(u"mCoverPage"_s);
    EXPECT_EQ(user.text(u"Sub Heading 1:"_s), u"typed"_s);
    user.key(u"Escape"_s);
    user.click(u"cmdClose"_s);
    EXPECT_FALSE(forms().contains(u"frmCoverPage"_s));
    EXPECT_EQ(cell(u"SELECT SubHeading1 FROM CoverPage"_s), u"null"_s);
}

TEST_F(ReferenceScreen, TheCoverPageCanBeChangedInAReadOnlySession) {
    write(u"SplashDef.txt"_s, "CompanyName=Larkmoor\r\nValue=secret\r\nSplash=1\r\n");
    startWithDoctors({});
    user.menu(u"mCoverPage"_s);
    dismissBox();
    save(u"Main Heading:"_s, u"The Larkins"_s);
    EXPECT_EQ(cell(u"SELECT Heading1 FROM CoverPage"_s), u"The Larkins"_s);
    user.click(u"cmdAdd"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
}

}  // namespace
