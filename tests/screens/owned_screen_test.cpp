#include <gtest/gtest.h>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class OwnedScreen : public support::Household {};

TEST_F(OwnedScreen, AnAddGoesOnFromTheFirstRowWithTheOwnersNumberInTheFile) {
    openFor({u"Ann Larkin"_s, u"Bob Larkin"_s}, u"Bob Larkin"_s, u"Home"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    EXPECT_FALSE(treeEnabled());
    EXPECT_EQ(user.text(u"Owner:"_s), u"Bob Larkin"_s);
    EXPECT_EQ(user.text(u"State:"_s), u"--"_s);
    user.fill(u"Date Purchased:"_s, u"june 1 2035"_s);
    user.pick(u"State:"_s, u"Texas"_s);
    save(u"Purchase Price:"_s, u"1,234.50"_s);
    EXPECT_TRUE(treeEnabled());
    EXPECT_EQ(cell(u"SELECT PersonID||'|'||PurchasePrice||'|'||DatePurchased||'|'||State FROM HomeOwned"_s),
              u"2|1234.5|2035-06-01|Texas"_s);
    add(u"Description:"_s, u"Oak Street"_s);
    EXPECT_EQ(status(), u"Record: 1 of 2"_s);
    EXPECT_EQ(user.text(u"Purchase Price:"_s), u"1,234.50"_s);
    EXPECT_EQ(attachKey(), u"Hom_2_1"_s);
    user.click(u"cmdNext"_s);
    EXPECT_EQ(user.text(u"Description:"_s), u"Oak Street"_s);
    EXPECT_EQ(user.text(u"txtFields(6)"_s), u"--"_s);
    EXPECT_EQ(attachKey(), u"Hom_2_2"_s);
}

TEST_F(OwnedScreen, ADateBoxWritesADateANullOrNothing) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Home"_s);
    save(u"Date Purchased:"_s, u"5/13/2001"_s);
    user.click(u"cmdEdit"_s);
    user.fill(u"Date Purchased:"_s, u"Feb 30 2001"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Date Purchased"_s);
    EXPECT_EQ(focusLabel(), u"Date Purchased:"_s);
    save(u"Date Purchased:"_s, u""_s);
    EXPECT_EQ(cell(u"SELECT DatePurchased FROM HomeOwned"_s), u"null"_s);
}

TEST_F(OwnedScreen, CancelGoesBackToTheRowOfTheLastAddAndShowsItsOwner) {
    openFor({u"Ann Larkin"_s, u"Bob Larkin"_s}, u"Whole Family"_s, u"Taxes"_s);
    save(u"Company:"_s, u"first"_s);
    user.click(u"cmdAdd"_s);
    user.pick(u"Person:"_s, u"Bob Larkin"_s);
    save(u"Company:"_s, u"second"_s);
    user.click(u"cmdLast"_s);
    EXPECT_EQ(user.text(u"Person:"_s), u"Bob Larkin"_s);
    user.click(u"cmdEdit"_s);
    user.fill(u"Company:"_s, u"lost"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(user.text(u"Company:"_s), u"first"_s);
    EXPECT_EQ(user.text(u"Person:"_s), u"Ann Larkin"_s);
    user.click(u"cmdLast"_s);
    user.click(u"cmdAdd"_s);
    EXPECT_EQ(user.text(u"Person:"_s), u"Bob Larkin"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(user.text(u"Company:"_s), u"second"_s);
    EXPECT_TRUE(isLocked(u"Person:"_s));
}

TEST_F(OwnedScreen, DeletingTheLastRowEndsInAnErrorAndTheScreenGoesOn) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"OtherProperty"_s);
    save(u"Type:"_s, u"boat"_s);
    add(u"Type:"_s, u"trailer"_s);
    for (const QString& expected : {QString(), u"Delete Error"_s}) {
        user.click(u"cmdDelete"_s);
        EXPECT_EQ(boxText(), u"Are you sure you want to delete this other property?"_s);
        user.answer(u"Yes"_s);
        EXPECT_EQ(boxTitle(), expected);
    }
    EXPECT_TRUE(boxText().startsWith(u"3021 - "_s));
    dismissBox();
    EXPECT_EQ(cell(u"SELECT Count(*) FROM OtherProperty"_s), u"0"_s);
    add(u"Type:"_s, u"sled"_s);
    EXPECT_EQ(cell(u"SELECT Type FROM OtherProperty"_s), u"sled"_s);
}

TEST_F(OwnedScreen, AnApostropheInTheOwnersNameFailsAndLosesNothing) {
    openFor({u"Pat O'Brien"_s, u"Ann Larkin"_s}, u"Whole Family"_s, u"Taxes"_s);
    user.pick(u"Person:"_s, u"Pat O'Brien"_s);
    save(u"Company:"_s, u"kept"_s);
    EXPECT_EQ(dismissBox(), u"Update Error"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    EXPECT_TRUE(isVisible(u"cmdUpdate"_s));
    EXPECT_EQ(user.text(u"Company:"_s), u"kept"_s);
    user.pick(u"Person:"_s, u"Ann Larkin"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(cell(u"SELECT PersonID FROM Taxes"_s), u"2"_s);
}

TEST_F(OwnedScreen, ARefusedWriteKeepsTheStateAndCanBeRepeated) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Bonds"_s);
    exec(u"CREATE TRIGGER refuse BEFORE INSERT ON Bonds BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
    user.fill(u"Purchase Date:"_s, u"june 1 2002"_s);
    save(u"Cost Basis:"_s, u"12.5"_s);
    EXPECT_EQ(dismissBox(), u"Update Error"_s);
    EXPECT_EQ(user.text(u"Cost Basis:"_s), u"12.5"_s);
    EXPECT_EQ(user.text(u"Purchase Date:"_s), u"june 1 2002"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    exec(u"DROP TRIGGER refuse"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(cell(u"SELECT Value||'|'||ValuationDate FROM Bonds"_s), u"12.5|2002-06-01"_s);
    EXPECT_EQ(user.text(u"Cost Basis:"_s), u"12.50"_s);
    EXPECT_EQ(user.text(u"Purchase Date:"_s), u"6/1/02"_s);
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
}

TEST_F(OwnedScreen, WhatWasTakenBackAfterARefusalIsNotWritten) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Home"_s);
    save(u"Description:"_s, u"Oak House"_s);
    exec(u"CREATE TRIGGER refuse BEFORE UPDATE ON HomeOwned BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
    change(u"Description:"_s, u"Elm House"_s);
    EXPECT_EQ(dismissBox(), u"Update Error"_s);
    exec(u"DROP TRIGGER refuse"_s);
    save(u"Description:"_s, u"Oak House"_s);
    EXPECT_EQ(cell(u"SELECT Description FROM HomeOwned"_s), u"Oak House"_s);

    exec(u"CREATE TRIGGER refuse BEFORE INSERT ON HomeOwned BEGIN SELECT RAISE(ABORT, 'no'); END"_s);
    user.click(u"cmdAdd"_s);
    user.fill(u"Purchase Price:"_s, u"99"_s);
    user.fill(u"Date Purchased:"_s, u"6/1/2002"_s);
    save(u"Description:"_s, u"Elm House"_s);
    EXPECT_EQ(dismissBox(), u"Update Error"_s);
    exec(u"DROP TRIGGER refuse"_s);
    user.fill(u"Purchase Price:"_s, u""_s);
    user.fill(u"Date Purchased:"_s, u""_s);
    save(u"Description:"_s, u""_s);
    EXPECT_EQ(cell(u"SELECT Coalesce(Description, '') || Coalesce(PurchasePrice, '') || Coalesce(DatePurchased, '') "
                   "FROM HomeOwned WHERE ID = 2"_s),
              QString());
}

TEST_F(OwnedScreen, OnlyAMembersVeryNameLeavesTheOwnerCombo) {
    openFor({u"Ann Larkin"_s, u"Bob Larkin"_s}, u"Ann Larkin"_s, u"Taxes"_s);
    user.fill(u"Person:"_s, u"bob larkin"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_TRUE(told().startsWith(u"No Matching Family Member: The name entered, bob larkin, does not match"_s));
    EXPECT_EQ(focusLabel(), u"Person:"_s);
    EXPECT_EQ(selected(u"Person:"_s), 10);
    user.fill(u"Person:"_s, u"Bob Larkin"_s);
    // The new row doesn't belong to the view of Ann, which has no other.
    save(u"Company:"_s, u"Bob's"_s);
    EXPECT_EQ(cell(u"SELECT PersonID FROM Taxes"_s), u"2"_s);
    EXPECT_FALSE(forms().contains(u"frmTaxes"_s));
    EXPECT_TRUE(treeEnabled());
}

TEST_F(OwnedScreen, AnOwnerWithoutANameIsSaidToBeDeletedAndStaysTheOwner) {
    openFor({u"Ann Larkin"_s, u"Bob Larkin"_s}, u"Whole Family"_s, u"Taxes"_s);
    save(u"Company:"_s, u"Ann's"_s);
    user.click(u"cmdAdd"_s);
    user.pick(u"Person:"_s, u"Bob Larkin"_s);
    save(u"Company:"_s, u"Bob's"_s);
    exec(u"UPDATE Person SET LegalName = NULL WHERE ID = 2"_s);
    user.click(u"cmdNext"_s);
    EXPECT_EQ(user.text(u"Person:"_s), u"Owner has been deleted."_s);
    user.fill(u"Company:"_s, u"mended"_s);
    saveUnchanged();
    EXPECT_EQ(cell(u"SELECT PersonID||Company FROM Taxes WHERE ID = 2"_s), u"2mended"_s);
    user.click(u"Person:"_s);
    user.key(u"Tab"_s);
    EXPECT_EQ(dismissBox(), u"No Matching Family Member"_s);
}

TEST_F(OwnedScreen, NothingIsSavedWithoutAnOwner) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"UPDATE Person SET LegalName = NULL WHERE ID = 2"_s);
    startFor(u"Whole Family"_s);
    // The name on show is proposed, and the second member has none.
    user.click(u"cmdNext"_s);
    openNode(u"Education"_s);
    save(u"School:"_s, u"Hill School"_s);
    EXPECT_EQ(told(),
              u"No Family Member: No family member has been entered.  No education information can be created."_s);
    EXPECT_EQ(status(), u"Add record"_s);
    EXPECT_EQ(cell(u"SELECT Count(*) FROM Education"_s), u"0"_s);
    // That member's missing name is not the empty one.
    user.click(u"Person:"_s);
    user.key(u"Tab"_s);
    EXPECT_EQ(dismissBox(), u"No Matching Family Member"_s);
}

TEST_F(OwnedScreen, ALoadThatFailsIsReportedByTheScreenOrByTheHost) {
    addMembers({u"Ann Larkin"_s});
    user.start();
    exec(u"DROP TABLE LUStates"_s);
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
    write(u"SplashDef.txt"_s, "CompanyName=Larkmoor\r\nValue=secret\r\nSplash=1\r\n");
    openFor(u"Ann Larkin"_s, u"Taxes"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Login"_s);
    openNode(u"Employment"_s);
    EXPECT_TRUE(isLocked(u"Employer:"_s));
    EXPECT_FALSE(isEnabled(u"Current"_s));
    for (const QString& button : {u"cmdAdd"_s, u"cmdEdit"_s, u"cmdDelete"_s}) {
        user.click(button);
        EXPECT_EQ(dismissBox(), u"Invalid Login"_s);
    }
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
}

// What single screens do otherwise ---------------------------------------------------------------------------------

TEST_F(OwnedScreen, APickOfAStateMarksStocksAsChangedAndBondsNot) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Birth"_s);
    struct Case {
        QString node, box, refusal;
    };
    for (const auto& [node, box, refusal] :
         {Case{u"Stocks"_s, u"Company:"_s, u"Screen Changes"_s}, {u"Bonds"_s, u"Issuer:"_s, QString()}}) {
        openNode(node);
        save(box, u"one"_s);
        add(box, u"two"_s);
        user.pick(u"State:"_s, u"Texas"_s);
        user.click(u"cmdNext"_s);
        EXPECT_EQ(boxTitle(), refusal) << node.toStdString();
        if (refusal.isEmpty()) continue;
        dismissBox();
        cancelEdit();
    }
    EXPECT_EQ(cell(u"SELECT group_concat(State) FROM Bonds"_s), u"--,--"_s);
}

TEST_F(OwnedScreen, FocusOfEducationAndFarmLand) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Education"_s);
    EXPECT_EQ(focusLabel(), u"School:"_s);
    user.fill(u"Start Year:"_s, u"when"_s);
    user.key(u"Tab"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Start Year"_s);
    EXPECT_EQ(focusLabel(), u"Start Year:"_s);
    save(u"Start Year:"_s, u"1999"_s);
    openNode(u"AgLand"_s);
    save(u"Current Use:"_s, u"wheat"_s);
    user.click(u"cmdEdit"_s);
    EXPECT_EQ(focusLabel(), u"Current Use:"_s);
    EXPECT_EQ(selected(u"Current Use:"_s), 5);
}

TEST_F(OwnedScreen, TheStatusOfAMarriageIsNoState) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Marriage"_s);
    EXPECT_EQ(items(u"Status:"_s), (QStringList{u"--"_s, u"Married"_s, u"Divorced"_s, u"Spouse Deceased"_s}));
    user.pick(u"Status:"_s, u"Divorced"_s);
    save(u"Married To:"_s, u"Cal"_s);
    EXPECT_EQ(cell(u"SELECT Status||State||MarriedTo FROM Marriage"_s), u"Divorced--Cal"_s);
}

TEST_F(OwnedScreen, BothCombosFollowTheRecordBehindAFirstAdd) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Marriage"_s);
    user.pick(u"State:"_s, u"Utah"_s);
    save(u"Married To:"_s, u"Cal"_s);
    user.click(u"cmdAdd"_s);
    user.pick(u"State:"_s, u"Ohio"_s);
    save(u"Married To:"_s, u"Dan"_s);
    EXPECT_EQ(user.text(u"State:"_s), u"Utah"_s);
    saveUnchanged();
    EXPECT_EQ(cell(u"SELECT group_concat(State) FROM Marriage"_s), u"Utah,Ohio"_s);
}

TEST_F(OwnedScreen, ARentCannotBeLeftEmpty) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Renter"_s);
    user.click(u"Rent:"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Rent"_s);
    user.type(u"650"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_FALSE(forms().contains(u"frmHomesRented"_s));
}

TEST_F(OwnedScreen, GoingToTheFirstRecordOfAlimonyFreesTheTree) {
    exec(u"INSERT INTO AlimonyChildSupport (PersonID, Type) VALUES (1, 1)"_s);
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Birth"_s);
    for (const auto& [node, frees] : {std::pair{u"Alimony"_s, true}, {u"ChildSupport"_s, false}}) {
        openNode(node);
        const QString window = activeWindow();
        openNode(u"Bonds"_s);
        EXPECT_EQ(status(), u"Add record"_s);
        user.key(u"Ctrl+Tab"_s);
        for (int i = 0; i < 3 && activeWindow() != window; ++i)
            user.key(u"Ctrl+Tab"_s);
        ASSERT_EQ(activeWindow(), window);
        ASSERT_FALSE(treeEnabled());
        user.click(u"cmdFirst"_s);
        EXPECT_EQ(treeEnabled(), frees) << node.toStdString();
        user.click(u"cmdClose"_s);
        user.key(u"Ctrl+W"_s);
    }
}

TEST_F(OwnedScreen, ANumberIsAskedForButInOneBox) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Birth"_s);
    for (const auto& [node, refusal] :
         {std::pair{u"Medical"_s, u"Invalid Deductible"_s}, {u"OtherInsurance"_s, u""_s}}) {
        openNode(node);
        user.fill(u"Deductible:"_s, u"none"_s);
        user.key(u"Tab"_s);
        EXPECT_EQ(boxTitle(), refusal) << node.toStdString();
        if (refusal.isEmpty()) continue;
        dismissBox();
        user.fill(u"Deductible:"_s, QString());
        user.click(u"cmdCancel"_s);
    }
}

// Several categories in one table ----------------------------------------------------------------------------------

TEST_F(OwnedScreen, ObligationsShowTheirOwnKindAndSupportShowsBoth) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Mortgages"_s);
    EXPECT_EQ(user.form()["caption"_L1].toString(), u"Mortgage Obligation Of -- Ann Larkin"_s);
    save(u"Mortgage Holder:"_s, u"Bank"_s);
    openNode(u"Loans"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(cell(u"SELECT Type FROM Obligations"_s), u"4"_s);
    openNode(u"Alimony"_s);
    save(u"Pay To:"_s, u"Cal"_s);
    EXPECT_EQ(cell(u"SELECT Type FROM AlimonyChildSupport"_s), u"1"_s);
    openNode(u"ChildSupport"_s);
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
    EXPECT_EQ(attachKey(), u"Ali_1_1"_s);
    saveUnchanged();
    EXPECT_EQ(cell(u"SELECT Type FROM AlimonyChildSupport"_s), u"2"_s);
}

TEST_F(OwnedScreen, AWindowThatIsOpenKeepsItsRecordWhenItIsAskedForAgain) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Loans"_s);
    save(u"Borrowed From:"_s, u"one"_s);
    add(u"Borrowed From:"_s, u"two"_s);
    user.click(u"cmdNext"_s);
    openNode(u"Birth"_s);
    openNode(u"Loans"_s);
    EXPECT_EQ(status(), u"Record: 2 of 2"_s);
    user.click(u"cmdClose"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
}

}  // namespace
