#include <gtest/gtest.h>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class PersonScreen : public support::Household {
protected:
    void startWith(const QStringList& members, const QString& selection) {
        addMembers(members);
        startFor(selection);
    }
    QStringList visibleButtons() {
        QStringList shown;
        for (const QString& name :
             {u"cmdAdd"_s, u"cmdEdit"_s, u"cmdUpdate"_s, u"cmdCancel"_s, u"cmdDelete"_s, u"cmdClose"_s}) {
            if (isVisible(name)) shown << name;
        }
        return shown;
    }
};

TEST_F(PersonScreen, TheFirstMemberIsKeptAndFoundAgainAtTheNextStart) {
    user.start();
    EXPECT_EQ(user.text(u"MDIHost.cmdAddNew"_s), u"Head of Household\r\nClick Here To Enter"_s);
    user.click(u"MDIHost.cmdAddNew"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    EXPECT_EQ(focusLabel(), u"Legal Name:"_s);
    EXPECT_TRUE(treeEnabled());
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(dismissBox(), u"No Legal Name"_s);
    user.fill(u"Legal Name:"_s, u"Zoë Łarkin 日本 😀"_s);
    user.fill(u"Date:"_s, u"May 13, 2035"_s);
    user.fill(u"Sex:"_s, u"f"_s);
    user.fill(u"SocSecNum:"_s, u"123456789"_s);
    user.pick(u"State:"_s, u"Vermont"_s);
    user.click(u"Was Adopted"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
    EXPECT_EQ(user.text(u"MDIHost.cmdAddNew"_s), u"E&nter Another Family Member"_s);
    EXPECT_EQ(image(u"Birth"_s), 2);
    EXPECT_TRUE(isEnabled(u"MDIHost.cbPerson"_s));
    EXPECT_EQ(
        cell(u"SELECT Seq||'|'||LegalName||'|'||BirthDate||'|'||Sex||'|'||SocSecNum||'|'||BirthState||'|'||WasAdopted "
             "FROM Person"_s),
        u"0|Zoë Łarkin 日本 😀|2035-05-13|F|123-45-6789|Vermont|-1"_s);
    user.close();
    startFor(u"Zoë Łarkin 日本 😀"_s);
    EXPECT_EQ(user.text(u"Date:"_s), u"5/13/2035"_s);
    EXPECT_EQ(user.control(u"Was Adopted"_s)["value"_L1].toInt(), 1);
}

TEST_F(PersonScreen, AFirstLetterMakesTheScreenDirtyAndOnlyEditLeadsOut) {
    startWith({u"Ann Larkin"_s, u"Bob Larkin"_s}, u"Whole Family"_s);
    user.click(u"City:"_s);
    for (const QString& key : {u"Tab"_s, u"Return"_s, u"Delete"_s, u"Left"_s})
        user.key(key);
    user.click(u"cmdNext"_s);
    EXPECT_EQ(status(), u"Record: 2 of 2"_s);
    user.click(u"City:"_s);
    user.type(u"Q"_s);
    user.click(u"cmdFirst"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    user.click(u"cmdAdd"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    EXPECT_EQ(status(), u"Record: 2 of 2"_s);
    user.click(u"cmdEdit"_s);
    EXPECT_EQ(visibleButtons(), (QStringList{u"cmdUpdate"_s, u"cmdCancel"_s}));
    EXPECT_TRUE(treeEnabled());
    EXPECT_EQ(cell(u"SELECT BirthCity FROM Person WHERE ID = 2"_s), u"null"_s);
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(cell(u"SELECT BirthCity FROM Person WHERE ID = 2"_s), u"Q"_s);
    user.click(u"cmdFirst"_s);
    EXPECT_EQ(status(), u"Record: 1 of 2"_s);
}

TEST_F(PersonScreen, CancelReturnsToTheRecordOfTheLastAddOrTheFirst) {
    startWith({u"Ann Larkin"_s, u"Bob Larkin"_s, u"Cy Larkin"_s}, u"Whole Family"_s);
    user.key(u"End"_s);
    user.click(u"cmdEdit"_s);
    user.fill(u"City:"_s, u"dropped"_s);
    user.click(u"cmdCancel"_s);
    EXPECT_EQ(status(), u"Record: 1 of 3"_s);
    EXPECT_EQ(cell(u"SELECT BirthCity FROM Person WHERE ID = 3"_s), u"null"_s);
    user.click(u"cmdNext"_s);
    user.click(u"cmdAdd"_s);
    EXPECT_FALSE(treeEnabled());
    user.click(u"cmdCancel"_s);
    EXPECT_TRUE(treeEnabled());
    EXPECT_EQ(status(), u"Record: 2 of 3"_s);
    user.click(u"cmdLast"_s);
    cancelEdit();
    EXPECT_EQ(status(), u"Record: 2 of 3"_s);
}

TEST_F(PersonScreen, ChecksHoldTheFocusAndTheButtonThatWasClicked) {
    startWith({u"Ann Larkin"_s}, u"Ann Larkin"_s);
    struct Case {
        QString box, text, title;
    };
    const Case cases[] = {
        {u"Date:"_s, u"Feb 30 2001"_s, u"Invalid Date"_s},
        {u"Sex:"_s, u"x"_s, u"Invalid Entry"_s},
        {u"SocSecNum:"_s, u"123-45-678"_s, u"Invalid Social Security Number"_s},
    };
    user.click(u"cmdEdit"_s);
    for (const Case& row : cases) {
        user.fill(row.box, row.text);
        user.click(u"cmdCancel"_s);
        EXPECT_EQ(dismissBox(), row.title);
        EXPECT_EQ(status(), u"Edit record"_s);
        EXPECT_EQ(focusLabel(), row.box);
        EXPECT_EQ(selected(row.box), user.text(row.box).size());
        // The toolbar and the menus take no focus and check nothing; a good entry lets go.
        user.fill(row.box, row.box == u"Sex:"_s ? u"F"_s : u""_s);
        user.key(u"Delete"_s);
        if (row.box == u"Sex:"_s) user.fill(row.box, u"m"_s);
    }
    user.click(u"cmdUpdate"_s);
    EXPECT_EQ(cell(u"SELECT Sex FROM Person"_s), u"M"_s);
}

TEST_F(PersonScreen, MovesKeepTheMemberByIDWhateverRowIsShown) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s, u"Cy Larkin"_s});
    exec(u"UPDATE Person SET Seq = 4 - Seq"_s);
    startFor(u"Whole Family"_s);
    EXPECT_EQ(user.text(u"Legal Name:"_s), u"Cy Larkin"_s);
    EXPECT_EQ(personID(), 1);
    user.click(u"cmdNext"_s);
    EXPECT_EQ(user.text(u"Legal Name:"_s), u"Bob Larkin"_s);
    EXPECT_EQ(personID(), 2);
    EXPECT_EQ(attachKey(), u"Kbk_2_0"_s);
    struct End {
        QString ctrl, plain, status;
        int person;
    };
    for (const End& end : {End{u"Ctrl+PageDown"_s, u"Down"_s, u"Record: 3 of 3"_s, 3},
                           End{u"Ctrl+PageUp"_s, u"Up"_s, u"Record: 1 of 3"_s, 1}}) {
        user.key(end.ctrl);
        user.forgetNoises();
        user.key(end.plain);
        EXPECT_EQ(user.state()["beeps"_L1].toInt(), 1);
        EXPECT_EQ(status(), end.status);
        EXPECT_EQ(personID(), end.person);
    }
    // In the view of one member the moves still change it.
    user.pick(u"MDIHost.cbPerson"_s, u"Bob Larkin"_s);
    user.click(u"cmdNext"_s);
    EXPECT_EQ(user.text(u"Legal Name:"_s), u"Bob Larkin"_s);
    EXPECT_EQ(personID(), 3);
}

TEST_F(PersonScreen, DeletingTakesTheMembersRowsAndEndsInAnErrorInTheViewOfOne) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s, u"Cy Larkin"_s});
    for (const QString& table : {u"HomeOwned"_s, u"CDs"_s, u"PIN_Password"_s}) {
        exec(u"INSERT INTO %1 (PersonID) VALUES (2), (3)"_s.arg(table));
    }
    startFor(u"Bob Larkin"_s);
    user.click(u"cmdDelete"_s);
    EXPECT_EQ(boxText(), u"Are you sure you want to delete Bob Larkin?"_s);
    user.answer(u"No"_s);
    EXPECT_EQ(cell(u"SELECT count(*) FROM HomeOwned"_s), u"2"_s);
    deleteRecord();
    EXPECT_TRUE(told().startsWith(u"Delete Error: 3021 - "_s));
    EXPECT_EQ(cell(u"SELECT ((SELECT count(*) FROM HomeOwned) + (SELECT count(*) FROM CDs) + (SELECT count(*) FROM "
                   "PIN_Password)) || ' ' || (SELECT count(*) FROM Person)"_s),
              u"3 2"_s);
    EXPECT_TRUE(items(u"MDIHost.cbPerson"_s).contains(u"Bob Larkin"_s));

    user.pick(u"MDIHost.cbPerson"_s, u"Whole Family"_s);
    user.click(u"cmdLast"_s);
    deleteRecord();
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
    EXPECT_FALSE(items(u"MDIHost.cbPerson"_s).contains(u"Cy Larkin"_s));
}

TEST_F(PersonScreen, DeletingAsksAgainWhenOtherRecordsThanThoseOnScreenWouldGo) {
    addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s, u"Cy Larkin"_s});
    exec(u"INSERT INTO CDs (PersonID) VALUES (1), (2), (3)"_s);
    startFor(u"Bob Larkin"_s);
    // In the view of one member the moves lead to the first and the last of all.
    user.click(u"cmdNext"_s);
    user.click(u"cmdDelete"_s);
    EXPECT_EQ(boxText(), u"Are you sure you want to delete Bob Larkin?"_s);
    user.answer(u"Yes"_s);
    EXPECT_EQ(boxTitle(), u"Delete Confirmation"_s);
    EXPECT_EQ(boxText(),
              u"The records that will be deleted with this member are those of Cy Larkin, not those of Bob Larkin.  Do "
              "you want to continue?"_s);
    user.key(u"Return"_s);
    EXPECT_EQ(boxTitle(), QString());
    EXPECT_EQ(cell(u"SELECT group_concat(PersonID) FROM CDs"_s), u"1,2,3"_s);
    EXPECT_EQ(cell(u"SELECT count(*) FROM Person"_s), u"3"_s);

    exec(u"DELETE FROM Person WHERE ID = 3"_s);
    deleteRecord();
    EXPECT_TRUE(boxText().contains(u"are those of a member who is no longer there, not those of Bob Larkin.  Do"_s));
    user.answer(u"Yes"_s);
    EXPECT_EQ(dismissBox(), u"Delete Error"_s);
    EXPECT_EQ(cell(u"SELECT group_concat(PersonID) FROM CDs"_s), u"1,2"_s);
    EXPECT_EQ(cell(u"SELECT group_concat(LegalName) FROM Person"_s), u"Ann Larkin"_s);
    // Nobody is on screen any more, so nobody's records go.
    deleteRecord();
    EXPECT_EQ(dismissBox(), u"Delete Error"_s);
    EXPECT_EQ(cell(u"SELECT group_concat(PersonID) FROM CDs"_s), u"1,2"_s);
}

TEST_F(PersonScreen, PrintingAllLeavesTheMemberOfTheView) {
    startWith({u"Ann Larkin"_s, u"Zoë Larkin"_s, u"Bob Larkin"_s}, u"Zoë Larkin"_s);
    exec(u"INSERT INTO Attachments (BugNum) VALUES ('Kbk_2_0')"_s);
    user.setPrinter(path(u"all.pdf"_s));
    for (const QString& key : {u"tbPrintAll"_s, u"tbSaveAll"_s}) {
        user.tool(key);
        if (key == u"tbSaveAll"_s) user.choose(path(u"all.txt"_s));
        EXPECT_EQ(personID(), 2);
        EXPECT_EQ(attachKey(), u"Kbk_2_0"_s);
        EXPECT_EQ(user.text(u"lblAttachments"_s), u"Attachments:  1"_s);
    }
    EXPECT_EQ(user.jobs().size(), 1);
    user.pick(u"MDIHost.cbPerson"_s, u"Whole Family"_s);
    user.click(u"cmdNext"_s);
    user.tool(u"tbPrintAll"_s);
    EXPECT_EQ(personID(), 1);
}

TEST_F(PersonScreen, CloseEndsTheWorkspace) {
    exec(u"INSERT INTO CDs (PersonID) VALUES (1)"_s);
    startWith({u"Ann Larkin"_s}, u"Ann Larkin"_s);
    openNode(u"CDs"_s);
    openNode(u"Birth"_s);
    EXPECT_EQ(forms().size(), 3);
    user.click(u"cmdClose"_s);
    EXPECT_EQ(forms(), QStringList{u"MDIHost"_s});
    EXPECT_EQ(user.text(u"MDIHost.cbPerson"_s), QString());
    EXPECT_EQ(focus(), u"cbPerson"_s);
    // Also when the name had been put there by a refusal, and not by a pick.
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    user.type(u"x"_s);
    user.pick(u"MDIHost.cbPerson"_s, u"Whole Family"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    cancelEdit();
    user.click(u"cmdClose"_s);
    EXPECT_EQ(user.text(u"MDIHost.cbPerson"_s), QString());
}

}  // namespace
