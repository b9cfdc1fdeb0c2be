#include <gtest/gtest.h>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

/// What stays on a screen, and what a later save makes of it, when a record is given up, refused or left.
class RecordLife : public support::Household {
protected:
    void click(const QStringList& buttons) {
        for (const QString& button : buttons)
            user.click(button);
    }
    bool mayAddMember() { return isEnabled(u"MDIHost.cmdAddNew"_s); }
};

// Cancel -----------------------------------------------------------------------------------------------------------

TEST_F(RecordLife, ACancelledTextIsGoneAlsoWhenTheRowToGoBackToHasBeenDeleted) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Taxes (PersonID, Company) VALUES (1, 'one'), (1, 'two'), (1, 'three')"_s);
    openFor(u"Ann Larkin"_s, u"Taxes"_s);
    click({u"cmdLast"_s, u"cmdAdd"_s, u"cmdCancel"_s, u"cmdDelete"_s});
    EXPECT_EQ(boxTitle(), u"Delete Confirmation"_s);
    user.answer(u"Yes"_s);
    click({u"cmdFirst"_s, u"cmdEdit"_s});
    user.fill(u"Company:"_s, u"cancelled"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(user.text(u"Company:"_s), u"one"_s);
    saveUnchanged();
    EXPECT_EQ(cell(u"SELECT group_concat(Company) FROM Taxes"_s), u"one,two"_s);
}

TEST_F(RecordLife, BehindACancelOwnerKeyAndCountAreThoseOfTheRecordOnScreen) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"INSERT INTO HomeOwned (PersonID, Description) VALUES (1, 'Ann''s'), (2, 'Bob''s')"_s);
    exec(u"INSERT INTO Attachments (BugNum) VALUES ('Hom_1_1')"_s);
    openFor(u"Whole Family"_s, u"Home"_s);
    user.click(u"cmdLast"_s);
    EXPECT_EQ(user.text(u"Owner:"_s), u"Bob Larkin"_s);
    click({u"cmdEdit"_s, u"cmdCancel"_s});
    EXPECT_EQ(user.text(u"Description:"_s), u"Ann's"_s);
    EXPECT_EQ(user.text(u"Owner:"_s), u"Ann Larkin"_s);
    EXPECT_EQ(user.text(u"txtFields(0)"_s), u"Ann Larkin"_s) << "the hidden box speaks for the combo on paper";
    EXPECT_EQ(attachKey(), u"Hom_1_1"_s);
    EXPECT_EQ(user.text(u"lblAttachments"_s), u"Attachments:  1"_s);
    saveUnchanged();
    EXPECT_EQ(cell(u"SELECT group_concat(PersonID || Description) FROM HomeOwned"_s), u"1Ann's,2Bob's"_s);
}

TEST_F(RecordLife, AnOwnerThatCantBeLookedUpIsNotReplacedByTheOneBefore) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"INSERT INTO Taxes (PersonID, Company) VALUES (1, 'Ann''s'), (2, 'Bob''s')"_s);
    openFor(u"Whole Family"_s, u"Taxes"_s);
    user.click(u"Company:"_s);
    exec(u"ALTER TABLE Person RENAME TO Kept"_s);
    user.click(u"cmdNext"_s);
    EXPECT_EQ(dismissBox(), u"UpdateName Error"_s);
    exec(u"ALTER TABLE Kept RENAME TO Person"_s);
    EXPECT_EQ(user.text(u"Company:"_s), u"Bob's"_s);
    saveUnchanged();
    EXPECT_EQ(dismissBox(), u"No Family Member"_s);
    EXPECT_EQ(cell(u"SELECT group_concat(PersonID || Company) FROM Taxes"_s), u"1Ann's,2Bob's"_s);
}

TEST_F(RecordLife, TheOwnerOfANewRowIsntTakenForThatOfTheFirstRow) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"INSERT INTO Taxes (PersonID) VALUES (1)"_s);
    exec(u"INSERT INTO Organizations (PersonID) VALUES (1)"_s);
    startFor(u"Whole Family"_s);
    for (const auto& [node, box] : {std::pair{u"Taxes"_s, u"Company:"_s}, {u"Organizations"_s, u"Organization:"_s}}) {
        openNode(node);
        user.click(u"cmdAdd"_s);
        user.pick(u"Person:"_s, u"Bob Larkin"_s);
        user.click(box);
        exec(u"UPDATE Person SET LegalName = NULL WHERE ID = 1"_s);
        user.click(u"cmdUpdate"_s);
        EXPECT_EQ(boxText(), u"Invalid name in database."_s);
        dismissBox();
        EXPECT_EQ(user.text(u"Person:"_s), u"Owner has been deleted."_s);
        saveUnchanged();
        EXPECT_EQ(boxTitle(), QString());
        EXPECT_EQ(cell(u"SELECT group_concat(PersonID) FROM "_s + node), u"1,2"_s) << node.toStdString();
        exec(u"UPDATE Person SET LegalName = 'Ann Larkin' WHERE ID = 1"_s);
    }
}

// Save -------------------------------------------------------------------------------------------------------------

TEST_F(RecordLife, ABoxLeftForAnotherWindowIsCheckedBeforeTheSave) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO LegalInfo (PersonID) VALUES (1)"_s);
    openFor(u"Ann Larkin"_s, u"Legal"_s);
    user.click(u"cmdEdit"_s);
    user.fill(u"Will Date:"_s, u"Feb 30 2001"_s);
    user.menu(u"mnuHelp"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Will Date"_s);
    EXPECT_EQ(status(), u"Edit record"_s);
    EXPECT_EQ(selected(u"Will Date:"_s), 11);
    user.fill(u"Will Date:"_s, u"Feb 3 2001"_s);
    user.menu(u"mnuHelp"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(boxTitle(), QString());
    EXPECT_EQ(cell(u"SELECT WillLastChangedDate FROM LegalInfo"_s), u"2001-02-03"_s);
    // A name that is nobody's makes no record without an owner.
    openNode(u"Taxes"_s);
    user.fill(u"Person:"_s, u"Anne"_s);
    user.menu(u"mnuHelp"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(dismissBox(), u"No Matching Family Member"_s);
    EXPECT_EQ(cell(u"SELECT Count(*) FROM Taxes"_s), u"0"_s);
}

TEST_F(RecordLife, ASavedEditShowsWhatTheFileHolds) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO HomeOwned (PersonID, State) VALUES (1, 'Ohio')"_s);
    openFor(u"Ann Larkin"_s, u"Home"_s);
    user.click(u"cmdEdit"_s);
    user.fill(u"Purchase Price:"_s, u"1234.5"_s);
    user.fill(u"Date Purchased:"_s, u"june 1 2035"_s);
    save(u"State:"_s, u"Texas"_s);
    EXPECT_EQ(user.text(u"Purchase Price:"_s), u"1,234.50"_s);
    EXPECT_EQ(user.text(u"Date Purchased:"_s), u"6/1/2035"_s);
    EXPECT_EQ(user.text(u"txtFields(6)"_s), u"Texas"_s);
}

TEST_F(RecordLife, ANameThatBeginsWithAMarkOrIsNoPlainTextCanBeChosenAndChanged) {
    exec(
        u"INSERT INTO Person (Seq, Sex, LegalName) VALUES (1, 'F', CAST(X'EFBBBF416E6E' AS TEXT)), "
        "(2, 'M', CAST(X'426FE962' AS TEXT))"_s);
    user.start();
    const QStringList names = items(u"MDIHost.cbPerson"_s);
    ASSERT_EQ(names.size(), 3);
    for (int member = 1; member <= 2; ++member) {
        user.pick(u"MDIHost.cbPerson"_s, names[member]);
        EXPECT_EQ(personID(), member);
        change(u"City:"_s, u"Town"_s);
        EXPECT_EQ(boxText(), QString());
    }
    EXPECT_EQ(cell(u"SELECT group_concat(hex(LegalName) || BirthCity) FROM Person"_s),
              u"EFBBBF416E6ETown,426FE962Town"_s);
    change(u"Legal Name:"_s, u"Bob"_s);
    EXPECT_EQ(cell(u"SELECT LegalName FROM Person WHERE ID = 2"_s), u"Bob"_s);
}

// Loading and leaving ----------------------------------------------------------------------------------------------

TEST_F(RecordLife, ALoadThatFailedIsDoneAgainAtTheNextClick) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Obligations (PersonID, Type, State) VALUES (1, 3, 'Ohio')"_s);
    exec(u"INSERT INTO HomeInsurance (PersonID, State) VALUES (1, 'Ohio')"_s);
    exec(u"INSERT INTO HomeOwned (PersonID, State) VALUES (1, 'Ohio')"_s);
    startFor(u"Ann Larkin"_s);
    const struct {
        QString node, window, title;
    } cases[] = {{u"Loans"_s, u"frmLoans"_s, u"NodeClick Error"_s},
                 {u"HomeOwners"_s, u"frmHomeInsurance"_s, u"NodeClick Error"_s},
                 {u"Home"_s, u"frmHomesOwned"_s, u"Form Load Error"_s}};
    for (const auto& [node, window, title] : cases) {
        exec(u"ALTER TABLE LUStates RENAME TO Kept"_s);
        openNode(node);
        EXPECT_EQ(dismissBox(), title);
        exec(u"ALTER TABLE Kept RENAME TO LUStates"_s);
        openNode(node);
        ASSERT_EQ(activeWindow(), window);
        EXPECT_TRUE(user.form()["caption"_L1].toString().endsWith(u"Ann Larkin"_s));
        EXPECT_EQ(user.text(u"cbFields(0)"_s), u"Ann Larkin"_s);
        EXPECT_EQ(user.text(u"State:"_s), u"Ohio"_s);
        user.click(u"cmdClose"_s);
    }
}

TEST_F(RecordLife, ASaveInAWindowThatCameUpWithoutItsStatesKeepsTheRowsState) {
    addMembers({u"Ann Larkin"_s});
    exec(u"UPDATE Person SET BirthState = 'Ohio'"_s);
    user.start();
    exec(u"ALTER TABLE LUStates RENAME TO Kept"_s);
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    EXPECT_EQ(dismissBox(), u"Form Load Error"_s);
    change(u"City:"_s, u"Larkmoor"_s);
    EXPECT_EQ(cell(u"SELECT BirthCity || BirthState FROM Person"_s), u"LarkmoorOhio"_s);
}

TEST_F(RecordLife, EveryWayOutOfAnAddGivesTheTreeAndTheAddButtonBack) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s});
    startFor(u"Ann Larkin"_s);
    for (const QString& way : {u"close box"_s, u"other owner"_s, u"cmdCancel"_s}) {
        openNode(u"Taxes"_s);
        EXPECT_EQ(status(), u"Add record"_s);
        EXPECT_FALSE(treeEnabled());
        EXPECT_FALSE(mayAddMember());
        if (way == u"close box"_s) {
            user.key(u"Ctrl+F4"_s);
        } else if (way == u"other owner"_s) {
            user.pick(u"Person:"_s, u"Bob Larkin"_s);
            save(u"Company:"_s, u"Bob's"_s);
        } else {
            user.click(way);
        }
        EXPECT_FALSE(forms().contains(u"frmTaxes"_s)) << way.toStdString();
        EXPECT_TRUE(treeEnabled()) << way.toStdString();
        EXPECT_TRUE(mayAddMember()) << way.toStdString();
    }
}

// Order and moves --------------------------------------------------------------------------------------------------

TEST_F(RecordLife, RecordsAndOwnersComeInTheOrderOfTheFamilyAndNotOfTheirEntry) {
    addMembers({u"Zoe Larkin"_s, u"Ann Larkin"_s, u"Bob Larkin"_s});
    exec(u"UPDATE Person SET Seq = (CASE ID WHEN 1 THEN 3 WHEN 2 THEN 1 ELSE 2 END)"_s);
    exec(u"INSERT INTO Taxes (PersonID, Company) VALUES (1, 'z'), (3, 'b1'), (2, 'a'), (3, 'b2')"_s);
    exec(
        u"INSERT INTO Obligations (PersonID, Type, Name) VALUES (1, 3, 'z'), (3, 3, 'b1'), (2, 3, 'a'), "
        "(3, 3, 'b2')"_s);
    startFor(u"Whole Family"_s);
    for (const QString& node : {u"Taxes"_s, u"Loans"_s}) {
        openNode(node);
        QStringList shown;
        for (int row = 0; row < 4; ++row) {
            shown << user.text(u"cbFields(0)"_s).left(1) + user.text(u"txtFields(1)"_s);
            user.click(u"cmdNext"_s);
        }
        EXPECT_EQ(shown, (QStringList{u"Aa"_s, u"Bb1"_s, u"Bb2"_s, u"Zz"_s})) << node.toStdString();
        EXPECT_EQ(items(u"cbFields(0)"_s), (QStringList{u"Ann Larkin"_s, u"Bob Larkin"_s, u"Zoe Larkin"_s}));
    }
}

TEST_F(RecordLife, KeysMoveToTheNeighboursOrTheEndsAndSilentlyStayThere) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Taxes (PersonID, Company) VALUES (1, 'a'), (1, 'b'), (1, 'c'), (1, 'd')"_s);
    openFor(u"Ann Larkin"_s, u"Taxes"_s);
    user.click(u"Company:"_s);
    for (const auto& [key, shown] : {std::pair{u"PageUp"_s, u"a"_s},
                                     {u"Ctrl+Down"_s, u"d"_s},
                                     {u"Down"_s, u"d"_s},
                                     {u"Ctrl+Up"_s, u"a"_s},
                                     {u"Down"_s, u"b"_s},
                                     {u"Ctrl+PageDown"_s, u"d"_s},
                                     {u"Up"_s, u"c"_s},
                                     {u"Ctrl+PageUp"_s, u"a"_s},
                                     {u"End"_s, u"d"_s},
                                     {u"Home"_s, u"a"_s}}) {
        user.key(key);
        EXPECT_EQ(user.text(u"Company:"_s), shown) << key.toStdString();
        EXPECT_EQ(user.text(u"Person:"_s), u"Ann Larkin"_s);
    }
    EXPECT_EQ(user.state()["beeps"_L1].toInt(), 0);
}

}  // namespace
