#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonObject>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class OwnedScreen : public support::Household {
protected:
    void openFor(const QStringList& members, const QString& selection, const QString& node) {
        addMembers(members);
        user.start();
        user.pick(u"MDIHost.cbPerson"_s, selection);
        openNode(node);
    }
    /// A record with a text in one box, saved from an add that is already under way.
    void save(int box, const QString& text) {
        user.fill(u"txtFields(%1)"_s.arg(box), text);
        user.click(u"cmdUpdate"_s);
    }
    void add(int box, const QString& text) {
        user.click(u"cmdAdd"_s);
        save(box, text);
    }
    QString focus() { return user.state()["focus"_L1].toString(); }
    bool isVisible(const QString& control) { return user.control(control)["visible"_L1].toBool(); }
    int selected(const QString& control) { return user.control(control)["selLength"_L1].toInt(); }
    QString attachKey() { return user.session()["gvAttachKey"_L1].toString(); }
};

TEST_F(OwnedScreen, AnAddGoesOnFromTheFirstRowWithTheOwnersNumberInTheFile) {
    openFor({u"Ann Larkin"_s, u"Bob Larkin"_s}, u"Bob Larkin"_s, u"Home"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    EXPECT_FALSE(treeEnabled());
    EXPECT_EQ(user.text(u"cbFields(0)"_s), u"Bob Larkin"_s);
    EXPECT_EQ(user.text(u"cbFields(1)"_s), u"--"_s);
    user.fill(u"txtFields(9)"_s, u"june 1 2035"_s);
    user.pick(u"cbFields(1)"_s, u"Texas"_s);
    save(8, u"1,234.50"_s);
    EXPECT_TRUE(treeEnabled());
    EXPECT_EQ(cell(u"SELECT PersonID||'|'||PurchasePrice||'|'||DatePurchased||'|'||State FROM HomeOwned"_s),
              u"2|1234.5|2035-06-01|Texas"_s);
    add(2, u"Oak Street"_s);
    EXPECT_EQ(status(), u"Record: 1 of 2"_s);
    EXPECT_EQ(user.text(u"txtFields(8)"_s), u"1,234.50"_s);
    EXPECT_EQ(attachKey(), u"Hom_2_1"_s);
    user.click(u"cmdNext"_s);
    EXPECT_EQ(user.text(u"txtFields(2)"_s), u"Oak Street"_s);
    EXPECT_EQ(user.text(u"txtFields(6)"_s), u"--"_s);
    EXPECT_EQ(attachKey(), u"Hom_2_2"_s);
}

TEST_F(OwnedScreen, ADateBoxWritesADateANullOrNothing) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Home"_s);
    save(9, u"5/13/2001"_s);
    user.click(u"cmdEdit"_s);
    user.fill(u"txtFields(9)"_s, u"Feb 30 2001"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Date Purchased"_s);
    EXPECT_EQ(focus(), u"txtFields(9)"_s);
    user.fill(u"txtFields(9)"_s, u""_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(cell(u"SELECT DatePurchased FROM HomeOwned"_s), u"null"_s);
}

TEST_F(OwnedScreen, CancelGoesBackToTheRowOfTheLastAddAndShowsItsOwner) {
    openFor({u"Ann Larkin"_s, u"Bob Larkin"_s}, u"Whole Family"_s, u"Taxes"_s);
    save(1, u"first"_s);
    user.click(u"cmdAdd"_s);
    user.pick(u"cbFields(0)"_s, u"Bob Larkin"_s);
    save(1, u"second"_s);
    user.click(u"cmdLast"_s);
    EXPECT_EQ(user.text(u"cbFields(0)"_s), u"Bob Larkin"_s);
    user.click(u"cmdEdit"_s);
    user.fill(u"txtFields(1)"_s, u"lost"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(user.text(u"txtFields(1)"_s), u"first"_s);
    EXPECT_EQ(user.text(u"cbFields(0)"_s), u"Ann Larkin"_s);
    user.click(u"cmdLast"_s);
    user.click(u"cmdAdd"_s);
    EXPECT_EQ(user.text(u"cbFields(0)"_s), u"Bob Larkin"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(user.text(u"txtFields(1)"_s), u"second"_s);
    EXPECT_TRUE(user.control(u"cbFields(0)"_s)["locked"_L1].toBool());
}

TEST_F(OwnedScreen, DeletingTheLastRowEndsInAnErrorAndTheScreenGoesOn) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"OtherProperty"_s);
    save(1, u"boat"_s);
    add(1, u"trailer"_s);
    for (const QString& expected : {QString(), u"Delete Error"_s}) {
        user.click(u"cmdDelete"_s);
        EXPECT_EQ(boxText(), u"Are you sure you want to delete this other property?"_s);
        user.answer(u"Yes"_s);
        EXPECT_EQ(boxTitle(), expected);
    }
    EXPECT_TRUE(boxText().startsWith(u"3021 - "_s));
    dismissBox();
    EXPECT_EQ(cell(u"SELECT Count(*) FROM OtherProperty"_s), u"0"_s);
    add(1, u"sled"_s);
    EXPECT_EQ(cell(u"SELECT Type FROM OtherProperty"_s), u"sled"_s);
}

TEST_F(OwnedScreen, AnApostropheInTheOwnersNameFailsAndLosesNothing) {
    openFor({u"Pat O'Brien"_s, u"Ann Larkin"_s}, u"Whole Family"_s, u"Taxes"_s);
    user.pick(u"cbFields(0)"_s, u"Pat O'Brien"_s);
    save(1, u"kept"_s);
    EXPECT_EQ(dismissBox(), u"Update Error"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    EXPECT_TRUE(isVisible(u"cmdUpdate"_s));
    EXPECT_EQ(user.text(u"txtFields(1)"_s), u"kept"_s);
    user.pick(u"cbFields(0)"_s, u"Ann Larkin"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(cell(u"SELECT PersonID FROM Taxes"_s), u"2"_s);
}

TEST_F(OwnedScreen, ARefusedWriteKeepsTheStateAndCanBeRepeated) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Bonds"_s);
    exec(u"CREATE TRIGGER refuse BEFORE INSERT ON Bonds BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
    user.fill(u"txtFields(11)"_s, u"june 1 2002"_s);
    save(10, u"12.5"_s);
    EXPECT_EQ(dismissBox(), u"Update Error"_s);
    EXPECT_EQ(user.text(u"txtFields(10)"_s), u"12.5"_s);
    EXPECT_EQ(user.text(u"txtFields(11)"_s), u"june 1 2002"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    exec(u"DROP TRIGGER refuse"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(cell(u"SELECT Value||'|'||ValuationDate FROM Bonds"_s), u"12.5|2002-06-01"_s);
    EXPECT_EQ(user.text(u"txtFields(10)"_s), u"12.50"_s);
    EXPECT_EQ(user.text(u"txtFields(11)"_s), u"6/1/02"_s);
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
}

TEST_F(OwnedScreen, WhatWasTakenBackAfterARefusalIsNotWritten) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Home"_s);
    save(2, u"Oak House"_s);
    exec(u"CREATE TRIGGER refuse BEFORE UPDATE ON HomeOwned BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
    user.click(u"cmdEdit"_s);
    save(2, u"Elm House"_s);
    EXPECT_EQ(dismissBox(), u"Update Error"_s);
    exec(u"DROP TRIGGER refuse"_s);
    save(2, u"Oak House"_s);
    EXPECT_EQ(cell(u"SELECT Description FROM HomeOwned"_s), u"Oak House"_s);

    exec(u"CREATE TRIGGER refuse BEFORE INSERT ON HomeOwned BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
    user.click(u"cmdAdd"_s);
    user.fill(u"txtFields(8)"_s, u"99"_s);
    user.fill(u"txtFields(9)"_s, u"6/1/2002"_s);
    save(2, u"Elm House"_s);
    EXPECT_EQ(dismissBox(), u"Update Error"_s);
    exec(u"DROP TRIGGER refuse"_s);
    user.fill(u"txtFields(8)"_s, u""_s);
    user.fill(u"txtFields(9)"_s, u""_s);
    save(2, u""_s);
    EXPECT_EQ(cell(u"SELECT Coalesce(Description, '') || Coalesce(PurchasePrice, '') || Coalesce(DatePurchased, '') "
                   "FROM HomeOwned WHERE ID = 2"_s),
              QString());
}

TEST_F(OwnedScreen, OnlyAMembersVeryNameLeavesTheOwnerCombo) {
    openFor({u"Ann Larkin"_s, u"Bob Larkin"_s}, u"Ann Larkin"_s, u"Taxes"_s);
    user.fill(u"cbFields(0)"_s, u"bob larkin"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_TRUE(boxText().startsWith(u"The name entered, bob larkin, does not match"_s));
    EXPECT_EQ(dismissBox(), u"No Matching Family Member"_s);
    EXPECT_EQ(focus(), u"cbFields(0)"_s);
    EXPECT_EQ(selected(u"cbFields(0)"_s), 10);
    user.fill(u"cbFields(0)"_s, u"Bob Larkin"_s);
    // The new row doesn't belong to the view of Ann, which has no other.
    save(1, u"Bob's"_s);
    EXPECT_EQ(cell(u"SELECT PersonID FROM Taxes"_s), u"2"_s);
    EXPECT_FALSE(forms().contains(u"frmTaxes"_s));
    EXPECT_TRUE(treeEnabled());
}

TEST_F(OwnedScreen, AnOwnerWithoutANameIsSaidToBeDeletedAndStaysTheOwner) {
    openFor({u"Ann Larkin"_s, u"Bob Larkin"_s}, u"Whole Family"_s, u"Taxes"_s);
    save(1, u"Ann's"_s);
    user.click(u"cmdAdd"_s);
    user.pick(u"cbFields(0)"_s, u"Bob Larkin"_s);
    save(1, u"Bob's"_s);
    exec(u"UPDATE Person SET LegalName = NULL WHERE ID = 2"_s);
    user.click(u"cmdNext"_s);
    EXPECT_EQ(user.text(u"cbFields(0)"_s), u"Owner has been deleted."_s);
    user.fill(u"txtFields(1)"_s, u"mended"_s);
    user.click(u"cmdEdit"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(cell(u"SELECT PersonID||Company FROM Taxes WHERE ID = 2"_s), u"2mended"_s);
    user.click(u"cbFields(0)"_s);
    user.key(u"Tab"_s);
    EXPECT_EQ(dismissBox(), u"No Matching Family Member"_s);
}

TEST_F(OwnedScreen, NothingIsSavedWithoutAnOwner) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"UPDATE Person SET LegalName = NULL WHERE ID = 2"_s);
    user.start();
    user.pick(u"MDIHost.cbPerson"_s, u"Whole Family"_s);
    // The name on show is proposed, and the second member has none.
    user.click(u"cmdNext"_s);
    openNode(u"Education"_s);
    save(1, u"Hill School"_s);
    EXPECT_EQ(boxText(), u"No family member has been entered.  No education information can be created."_s);
    EXPECT_EQ(dismissBox(), u"No Family Member"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    EXPECT_EQ(cell(u"SELECT Count(*) FROM Education"_s), u"0"_s);
    // That member's missing name is not the empty one.
    user.click(u"cbFields(0)"_s);
    user.key(u"Tab"_s);
    EXPECT_EQ(dismissBox(), u"No Matching Family Member"_s);
}

TEST_F(OwnedScreen, AMoveBeyondAnEndStaysOnTheRow) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Taxes"_s);
    save(1, u"one"_s);
    add(1, u"two"_s);
    struct Step {
        QString key, status;
    };
    user.click(u"txtFields(1)"_s);
    for (const Step& step : {Step{u"PageUp"_s, u"Record: 1 of 2"_s}, Step{u"Down"_s, u"Record: 2 of 2"_s},
                             Step{u"Down"_s, u"Record: 2 of 2"_s}, Step{u"Ctrl+Up"_s, u"Record: 1 of 2"_s},
                             Step{u"End"_s, u"Record: 2 of 2"_s}, Step{u"Home"_s, u"Record: 1 of 2"_s}}) {
        user.key(step.key);
        EXPECT_EQ(status(), step.status) << step.key.toStdString();
        EXPECT_EQ(user.text(u"cbFields(0)"_s), u"Ann Larkin"_s);
    }
    EXPECT_EQ(user.state()["beeps"_L1].toInt(), 0);
}

TEST_F(OwnedScreen, ALoadThatFailsIsReportedByTheScreenOrByTheHost) {
    addMembers({u"Ann Larkin"_s});
    exec(u"DROP TABLE LUStates"_s);
    user.start();
    user.pick(u"MDIHost.cbPerson"_s, u"Whole Family"_s);
    EXPECT_EQ(dismissBox(), u"Form Load Error"_s);
    openNode(u"Home"_s);
    EXPECT_EQ(dismissBox(), u"Form Load Error"_s);
    EXPECT_EQ(activeWindow(), u"frmHomesOwned"_s);
    openNode(u"Bonds"_s);
    EXPECT_EQ(dismissBox(), u"NodeClick Error"_s);
    EXPECT_FALSE(forms().contains(u"frmBonds"_s));
}

TEST_F(OwnedScreen, InAReadOnlySessionRowsAreSeenAndNothingIsChanged) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"INSERT INTO Employers (PersonID, Employer) VALUES (1, 'Mill')"_s);
    writeFile(u"SplashDef.txt"_s, "CompanyName=Larkmoor\r\nValue=secret\r\nSplash=1\r\n");
    user.start();
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    openNode(u"Taxes"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Login"_s);
    openNode(u"Employment"_s);
    EXPECT_TRUE(user.control(u"txtFields(1)"_s)["locked"_L1].toBool());
    EXPECT_FALSE(user.control(u"chkFields(0)"_s)["enabled"_L1].toBool());
    for (const QString& button : {u"cmdAdd"_s, u"cmdEdit"_s, u"cmdDelete"_s}) {
        user.click(button);
        EXPECT_EQ(dismissBox(), u"Invalid Login"_s);
    }
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
}

// What single screens do otherwise ---------------------------------------------------------------------------------

TEST_F(OwnedScreen, APickOfAStateMarksStocksAsChangedAndBondsNot) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Birth"_s);
    for (const auto& [node, refusal] : {std::pair{u"Stocks"_s, u"Screen Changes"_s}, {u"Bonds"_s, QString()}}) {
        openNode(node);
        save(1, u"one"_s);
        add(1, u"two"_s);
        user.pick(u"cbFields(1)"_s, u"Texas"_s);
        user.click(u"cmdNext"_s);
        EXPECT_EQ(boxTitle(), refusal) << node.toStdString();
        if (refusal.isEmpty()) continue;
        dismissBox();
        user.click(u"cmdEdit"_s);
        user.click(u"cmdCancel"_s);
    }
    EXPECT_EQ(cell(u"SELECT group_concat(State) FROM Bonds"_s), u"--,--"_s);
}

TEST_F(OwnedScreen, FocusOfEducationAndFarmLand) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Education"_s);
    EXPECT_EQ(focus(), u"txtFields(1)"_s);
    user.fill(u"txtFields(5)"_s, u"when"_s);
    user.key(u"Tab"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Start Year"_s);
    EXPECT_EQ(focus(), u"txtFields(5)"_s);
    save(5, u"1999"_s);
    openNode(u"AgLand"_s);
    save(1, u"wheat"_s);
    user.click(u"cmdEdit"_s);
    EXPECT_EQ(focus(), u"txtFields(1)"_s);
    EXPECT_EQ(selected(u"txtFields(1)"_s), 5);
}

TEST_F(OwnedScreen, TheStatusOfAMarriageIsNoState) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Marriage"_s);
    EXPECT_EQ(user.control(u"cbFields(1)"_s)["items"_L1].toVariant().toStringList(),
              (QStringList{u"--"_s, u"Married"_s, u"Divorced"_s, u"Spouse Deceased"_s}));
    user.pick(u"cbFields(1)"_s, u"Divorced"_s);
    save(1, u"Cal"_s);
    EXPECT_EQ(cell(u"SELECT Status||State||MarriedTo FROM Marriage"_s), u"Divorced--Cal"_s);
}

TEST_F(OwnedScreen, BothCombosFollowTheRecordBehindAFirstAdd) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Marriage"_s);
    user.pick(u"cbFields(2)"_s, u"Utah"_s);
    save(1, u"Cal"_s);
    user.click(u"cmdAdd"_s);
    user.pick(u"cbFields(2)"_s, u"Ohio"_s);
    save(1, u"Dan"_s);
    EXPECT_EQ(user.text(u"cbFields(2)"_s), u"Utah"_s);
    user.click(u"cmdEdit"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(cell(u"SELECT group_concat(State) FROM Marriage"_s), u"Utah,Ohio"_s);
}

TEST_F(OwnedScreen, ARentCannotBeLeftEmpty) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Renter"_s);
    user.click(u"txtFields(7)"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Rent"_s);
    user.type(u"650"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_FALSE(forms().contains(u"frmHomesRented"_s));
}

// Several categories in one table ----------------------------------------------------------------------------------

TEST_F(OwnedScreen, ObligationsShowTheirOwnKindAndSupportShowsBoth) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Mortgages"_s);
    EXPECT_EQ(user.form()["caption"_L1].toString(), u"Mortgage Obligation Of -- Ann Larkin"_s);
    save(1, u"Bank"_s);
    openNode(u"Loans"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(cell(u"SELECT Type FROM Obligations"_s), u"4"_s);
    openNode(u"Alimony"_s);
    save(1, u"Cal"_s);
    EXPECT_EQ(cell(u"SELECT Type FROM AlimonyChildSupport"_s), u"1"_s);
    openNode(u"ChildSupport"_s);
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
    EXPECT_EQ(attachKey(), u"Ali_1_1"_s);
    user.click(u"cmdEdit"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(cell(u"SELECT Type FROM AlimonyChildSupport"_s), u"2"_s);
}

TEST_F(OwnedScreen, AWindowThatIsOpenKeepsItsRecordWhenItIsAskedForAgain) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Loans"_s);
    save(1, u"one"_s);
    add(1, u"two"_s);
    user.click(u"cmdNext"_s);
    openNode(u"Birth"_s);
    openNode(u"Loans"_s);
    EXPECT_EQ(status(), u"Record: 2 of 2"_s);
    user.click(u"cmdClose"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
}

}  // namespace
