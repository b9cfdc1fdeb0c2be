#include <gtest/gtest.h>

#include <QJsonObject>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class Host : public support::Household {
protected:
    const QString selector = u"MDIHost.cbPerson"_s;

    void select(const QString& name) { user.pick(selector, name); }
    void typeName(const QString& name) {
        user.fill(selector, name);
        user.key(u"Return"_s);
    }
    QString person() {
        const QJsonObject session = user.session();
        return u"%1 '%2' %3"_s.arg(session["gPersonID"_L1].toInt())
            .arg(session["gsPersonName"_L1].toString(), session["gbWholeFamily"_L1].toBool() ? u"whole"_s : u"one"_s);
    }
};

TEST_F(Host, APictureFollowsTheTableOfItsNodeAndTheSelection) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"INSERT INTO HomeOwned (PersonID) VALUES (2)"_s);
    exec(u"INSERT INTO Obligations (PersonID, Type) VALUES (1, 2)"_s);
    exec(u"INSERT INTO HomeRented (PersonID) VALUES (2)"_s);
    exec(u"INSERT INTO RentalRealEstate (PersonID) VALUES (1)"_s);
    exec(u"INSERT INTO Doctors (Name) VALUES ('Dr. Hale')"_s);
    struct Case {
        QString selection;
        QMap<QString, int> pictures;
    };
    const Case cases[] = {
        {u"Whole Family"_s, {{u"Home"_s, 2}, {u"Assets"_s, 2}, {u"Loans"_s, 2}, {u"Rentals"_s, 2}, {u"CDs"_s, 1}}},
        // The node of the rented-out houses goes by the rented homes; doctors belong to everybody.
        {u"Ann Larkin"_s,
         {{u"Home"_s, 1},
          {u"RealEstate"_s, 1},
          {u"Loans"_s, 2},
          {u"Rentals"_s, 1},
          {u"Birth"_s, 2},
          {u"Doctors"_s, 2}}},
        {u"Bob Larkin"_s, {{u"Home"_s, 2}, {u"Assets"_s, 2}, {u"Loans"_s, 1}, {u"Rentals"_s, 2}}},
    };
    user.start();
    EXPECT_FALSE(treeEnabled());
    for (const Case& row : cases) {
        select(row.selection);
        for (auto it = row.pictures.begin(); it != row.pictures.end(); ++it) {
            EXPECT_EQ(image(it.key()), it.value()) << qPrintable(row.selection + u' ' + it.key());
        }
    }
    // A branch that was clicked is put right by the next click.
    openNode(u"Banking"_s);
    EXPECT_EQ(image(u"Banking"_s), 2);
    EXPECT_EQ(forms().size(), 2);
    user.node(u"Assets"_s);
    EXPECT_EQ(image(u"Banking"_s), 1);
}

TEST_F(Host, TheTreeShowsTheNodeOfTheWindowInFront) {
    addMembers({u"Ann Larkin"_s});
    for (const char* table : {"HomeOwned", "Marriage", "LegalInfo"})
        exec(u"INSERT INTO %1 (PersonID) VALUES (1)"_s.arg(QLatin1StringView(table)));
    startFor(u"Ann Larkin"_s);
    EXPECT_EQ(selectedNode(), u"Birth"_s);
    openNode(u"Home"_s);
    EXPECT_EQ(selectedNode(), u"Home"_s);
    // Of the two nodes of one window it is the one that was clicked.
    openNode(u"Legal1"_s);
    EXPECT_EQ(selectedNode(), u"Legal1"_s);
    user.click(u"cmdClose"_s);
    EXPECT_EQ(selectedNode(), u"Home"_s) << "a window was closed";
    user.click(u"Address:"_s);
    user.type(u"x"_s);
    openNode(u"Marriage"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    EXPECT_EQ(selectedNode(), u"Home"_s) << "a click was refused";
}

TEST_F(Host, ANameIsAcceptedByEnterAsTheDatabaseComparesIt) {
    addMembers({u"Ann Larkin"_s, u"Cy O'Brien"_s});
    user.start();
    EXPECT_EQ(person(), u"0 'Family' whole"_s);
    typeName(u"Nobody"_s);
    EXPECT_EQ(dismissBox(), u"No Matching Family Member"_s);
    EXPECT_EQ(selected(selector), 6);
    EXPECT_EQ(person(), u"0 'Nobody' one"_s);
    typeName(u"ann larkin"_s);
    EXPECT_EQ(person(), u"1 'ann larkin' one"_s);
    EXPECT_TRUE(treeEnabled());
    typeName(u"Cy O'Brien"_s);
    EXPECT_TRUE(boxText().contains(u"Syntax error"_s));
    EXPECT_EQ(dismissBox(), u"cbPersonClick Error"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
}

TEST_F(Host, TheFirstMemberWithoutANameEndsTheList) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Person (Seq) VALUES (2)"_s);
    exec(u"INSERT INTO Person (LegalName, Seq) VALUES ('Zoe Larkin', 3)"_s);
    user.start();
    EXPECT_EQ(user.control(selector)["items"_L1].toArray().size(), 2);
}

TEST_F(Host, NothingLeavesAScreenWithChanges) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    startFor(u"Ann Larkin"_s);
    user.expand(u"Family Member Information"_s);
    user.click(u"City:"_s);
    user.type(u"Q"_s);
    select(u"Bob Larkin"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    EXPECT_EQ(user.text(selector), u"Ann Larkin"_s);
    user.node(u"Marriage"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    user.click(u"MDIHost.cmdAddNew"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    EXPECT_EQ(user.text(u"City:"_s), u"Q"_s);

    user.close();
    EXPECT_EQ(boxTitle(), u"Close Confirmation"_s);
    user.answer(u"No"_s);
    EXPECT_TRUE(running());
    EXPECT_EQ(user.text(u"City:"_s), u"Q"_s);
    user.close();
    user.answer(u"Yes"_s);
    EXPECT_FALSE(running());
}

TEST_F(Host, AWindowWithChangesBehindTheActiveOneIsAskedAboutAndStaysOnNo) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"INSERT INTO CDs (PersonID) VALUES (1)"_s);
    openFor(u"Ann Larkin"_s, u"CDs"_s);
    user.click(u"Institution:"_s);
    user.type(u"Q"_s);
    user.key(u"Ctrl+Tab"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
    select(u"Bob Larkin"_s);
    EXPECT_EQ(boxTitle(), u"Close Confirmation"_s);
    user.answer(u"No"_s);
    EXPECT_EQ(forms(), (QStringList{u"MDIHost"_s, u"frmKinbook"_s, u"frmCDs"_s}));
    EXPECT_EQ(user.text(u"frmCDs.Institution:"_s), u"Q"_s);
    // What was opened for the one doesn't stand under the other.
    EXPECT_EQ(person(), u"1 'Ann Larkin' one"_s);
    EXPECT_EQ(user.text(selector), u"Ann Larkin"_s);
    user.close();
    EXPECT_EQ(boxTitle(), u"Close Confirmation"_s);
    user.answer(u"Yes"_s);
    EXPECT_FALSE(running());
}

TEST_F(Host, AYesForOneWindowCountsOnlyWhenNoOtherStays) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"INSERT INTO CDs (PersonID) VALUES (1)"_s);
    exec(u"INSERT INTO Bonds (PersonID) VALUES (1)"_s);
    startFor(u"Ann Larkin"_s);
    for (const auto& [node, box] : {std::pair{u"CDs"_s, u"Institution:"_s}, {u"Bonds"_s, u"Issuer:"_s}}) {
        openNode(node);
        user.click(box);
        user.type(u"Q"_s);
        // Back to the window before, which doesn't ask about changes.
        user.key(u"Ctrl+Tab"_s);
        ASSERT_EQ(activeWindow(), u"frmKinbook"_s);
    }
    for (const bool closes : {true, false, true}) {
        if (closes) {
            user.close();
        } else {
            select(u"Whole Family"_s);
        }
        for (const QString& answer : {u"Yes"_s, u"No"_s}) {
            EXPECT_EQ(boxTitle(), u"Close Confirmation"_s);
            user.answer(answer);
        }
        EXPECT_EQ(boxTitle(), QString());
        EXPECT_EQ(forms().size(), 4);
        EXPECT_EQ(person(), u"1 'Ann Larkin' one"_s);
    }
    select(u"Whole Family"_s);
    user.answer(u"Yes"_s);
    user.answer(u"Yes"_s);
    EXPECT_EQ(forms(), (QStringList{u"MDIHost"_s, u"frmKinbook"_s}));
    EXPECT_EQ(person(), u"1 'Whole Family' whole"_s);
}

TEST_F(Host, AnEleventhFormIsRefusedHoweverItIsAskedFor) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO WhoGetsWhat (Item) VALUES ('Clock')"_s);
    const QStringList nodes{u"CDs"_s,   u"Checking"_s, u"MoneyMarkets"_s, u"Savings"_s, u"SafeDeposit"_s,
                            u"Bonds"_s, u"Stocks"_s,   u"Annuities"_s,    u"Antiques"_s};
    for (const QString& table : {u"CDs"_s, u"CheckingAccounts"_s, u"MoneyMarkets"_s, u"SavingsAccounts"_s,
                                 u"SafetyDeposit"_s, u"Bonds"_s, u"Stocks"_s, u"Annuities"_s, u"Antiques"_s}) {
        exec(u"INSERT INTO %1 (PersonID) VALUES (1)"_s.arg(table));
    }
    startFor(u"Ann Larkin"_s);
    for (const QString& node : nodes)
        openNode(node);
    EXPECT_EQ(forms().size(), 11);
    user.node(u"CDs"_s);
    EXPECT_EQ(dismissBox(), u"Too Many Data Windows Open"_s) << "a window that is open";
    user.menu(u"mComing"_s);
    EXPECT_EQ(dismissBox(), u"Too Many Data Windows Open"_s);
    user.key(u"Ctrl+F"_s);
    user.type(u"clock"_s);
    user.key(u"Return"_s);
    EXPECT_EQ(dismissBox(), u"Too Many Data Windows Open"_s) << "the place of a finding";
    EXPECT_EQ(forms().size(), 11);
    user.click(u"cmdClose"_s);
    user.key(u"Ctrl+F"_s);
    user.key(u"Return"_s);
    EXPECT_EQ(activeWindow(), u"frmWhoGetsWhat"_s) << "looking is free";
    // A new selection closes them all.
    select(u"Whole Family"_s);
    EXPECT_EQ(forms(), (QStringList{u"MDIHost"_s, u"frmKinbook"_s}));
}

TEST_F(Host, AddingAMemberNeedsASelectionAndADisabledTreeSaysWhy) {
    addMembers({u"Ann Larkin"_s});
    user.start();
    user.click(u"MDIHost.cmdAddNew"_s);
    EXPECT_EQ(dismissBox(), u"Missing Selection"_s);
    user.node(u"r"_s);
    EXPECT_TRUE(boxText().startsWith(u"You have clicked on the Data Window Selection Box"_s));
    dismissBox();
    select(u"Whole Family"_s);
    user.node(u"r"_s);
    EXPECT_TRUE(user.dialog().isEmpty());
}

}  // namespace
