#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QJsonObject>
#include <algorithm>
#include <chrono>
#include <thread>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

/// A user without a mouse.
class Keyboard : public support::Household {
protected:
    const QString selector = u"MDIHost.cbPerson"_s;

    /// Longer than the arrows rest on a node before it opens.
    static void rest() { std::this_thread::sleep_for(std::chrono::milliseconds(900)); }
    /// Longer than the letters of one name may lie apart.
    static void pause() {
        std::this_thread::sleep_for(std::chrono::milliseconds(QApplication::keyboardInputInterval() + 80));
    }
    /// Across the left edge of the button that stands alone at the first start; 0 if all there is grey.
    int mostColourLeftOfFirstButton() {
        const QString picture = path(u"start.png"_s);
        user.shot(picture);
        const QImage shown(picture);
        int most = 0;
        for (int x = 0; x < 30; ++x)
            most = std::max(most, shown.pixelColor(x, 48).hslSaturation());
        return most;
    }
    void keys(const QStringList& names) {
        for (const QString& name : names)
            user.key(name);
    }
};

// Where the focus stands -------------------------------------------------------------------------------------------

TEST_F(Keyboard, AnAddAndAnEditBeginInTheFirstBoxThatTakesWhatIsTyped) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO HomeOwned (PersonID, Description) VALUES (1, 'Cottage')"_s);
    exec(u"INSERT INTO AgRealEstate (PersonID, Description) VALUES (1, 'Meadow')"_s);
    exec(u"INSERT INTO Doctors (Name) VALUES ('Dr. Hale')"_s);
    struct Case {
        QString node, edits, adds;
    };
    startFor(u"Ann Larkin"_s);
    for (const Case& row :
         {Case{u"Home"_s, u"txtFields(1)"_s, u"cbFields(0)"_s}, Case{u"AgLand"_s, u"txtFields(1)"_s, u"cbFields(0)"_s},
          Case{u"Birth"_s, u"txtFields(0)"_s, u"txtFields(0)"_s},
          Case{u"Doctors"_s, u"txtFields(0)"_s, u"txtFields(0)"_s}, Case{u"Taxes"_s, {}, u"cbFields(0)"_s}}) {
        SCOPED_TRACE(row.node.toStdString());
        openNode(row.node);
        if (!row.edits.isEmpty()) {
            user.key(u"Alt+E"_s);
            EXPECT_EQ(focus(), row.edits);
            user.type(u" "_s);
            EXPECT_EQ(status(), u"Edit record"_s) << "a blank presses no button";
            EXPECT_EQ(user.text(row.edits), u" "_s);
            user.key(u"Alt+C"_s);
            user.key(u"Ctrl+N"_s);
        }
        EXPECT_EQ(status(), u"Add record"_s);
        EXPECT_EQ(focus(), row.adds);
        user.key(u"Alt+C"_s);
    }
}

TEST_F(Keyboard, AfterTheDialogOfAListTheFocusIsInTheGrid) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"AssetLiquidation"_s);
    user.key(u"Ctrl+N"_s);
    user.key(u"Escape"_s);
    EXPECT_EQ(activeWindow(), u"frmAssetLiquidation"_s);
    EXPECT_EQ(focus(), u"grdDataGrid"_s);
}

// What a key sets off ----------------------------------------------------------------------------------------------

TEST_F(Keyboard, AKeyThatMovedTheRecordIsUsedUp) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO HomeOwned (PersonID, State) VALUES (1, 'Ohio'), (1, 'Texas'), (1, 'Utah')"_s);
    openFor(u"Ann Larkin"_s, u"Home"_s);
    user.click(u"cbFields(1)"_s);
    for (const QString& state : {u"Texas"_s, u"Utah"_s}) {
        user.key(u"Down"_s);
        EXPECT_EQ(user.text(u"cbFields(1)"_s), state);
    }
    user.key(u"Alt+E"_s);
    user.key(u"Ctrl+S"_s);
    EXPECT_EQ(cell(u"SELECT group_concat(State) FROM HomeOwned"_s), u"Ohio,Texas,Utah"_s);
    // A move that is refused uses its key up too.
    user.click(u"cbFields(1)"_s);
    user.type(u"!"_s);
    user.key(u"Up"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    EXPECT_EQ(user.text(u"cbFields(1)"_s).count(u'!'), 1);
}

TEST_F(Keyboard, ACommandIsNoTyping) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Taxes (PersonID, Company) VALUES (1, 'one'), (1, 'two'), (1, 'three')"_s);
    openFor(u"Ann Larkin"_s, u"Taxes"_s);
    user.click(u"cmdNext"_s);
    user.key(u"Space"_s);
    EXPECT_EQ(boxTitle(), QString());
    EXPECT_EQ(status(), u"Record: 3 of 3"_s);
    user.click(u"txtFields(1)"_s);
    keys({u"Ctrl+S"_s, u"Ctrl+A"_s, u"Alt+Q"_s, u"Ctrl+C"_s, u"F6"_s, u"Shift+F6"_s, u"Ctrl+Up"_s});
    EXPECT_EQ(boxTitle(), QString());
    EXPECT_EQ(status(), u"Record: 1 of 3"_s);
    user.click(u"txtFields(1)"_s);
    EXPECT_EQ(user.text(u"txtFields(1)"_s), u"one"_s) << "a letter with Alt types nothing where no button has it";
    user.key(u"Ctrl+V"_s);
    user.key(u"Down"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s) << "to paste is typing";
}

TEST_F(Keyboard, SaveAndAddHaveKeysWhereTheyShow) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Taxes (PersonID) VALUES (1)"_s);
    exec(u"INSERT INTO LegalInfo (PersonID) VALUES (1)"_s);
    openFor(u"Ann Larkin"_s, u"Taxes"_s);
    user.key(u"Ctrl+S"_s);
    EXPECT_EQ(status(), u"Record: 1 of 1"_s);
    user.key(u"Ctrl+N"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    user.key(u"Tab"_s);
    user.type(u"Town Hall"_s);
    user.key(u"Ctrl+N"_s);
    user.key(u"Ctrl+S"_s);
    EXPECT_EQ(status(), u"Record: 1 of 2"_s);
    EXPECT_EQ(focus(), u"txtFields(1)"_s);
    EXPECT_EQ(cell(u"SELECT group_concat(Company) FROM Taxes"_s), u"Town Hall"_s);
    // What is wrong in the box is told first, as it is when the button is pressed.
    openNode(u"Legal"_s);
    user.key(u"Alt+E"_s);
    user.type(u"Feb 30 2001"_s);
    user.key(u"Ctrl+S"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Trust Date"_s);
    EXPECT_EQ(status(), u"Edit record"_s);
}

TEST_F(Keyboard, EnterPressesTheButtonThatHasTheFocus) {
    user.start();
    EXPECT_EQ(focus(), u"cmdAddNew"_s);
    EXPECT_GT(mostColourLeftOfFirstButton(), 100) << "its ring shows";
    user.key(u"Return"_s);
    EXPECT_EQ(status(), u"Add record"_s);
    user.type(u"Ann Larkin"_s);
    user.key(u"Alt+S"_s);
    EXPECT_EQ(cell(u"SELECT LegalName FROM Person"_s), u"Ann Larkin"_s);
    EXPECT_EQ(focus(), u"cmdEdit"_s);
    user.key(u"Enter"_s);
    EXPECT_EQ(status(), u"Edit record"_s);
}

TEST_F(Keyboard, WhatHasTheFocusInADialogIsSeenFromTheStart) {
    addMembers({u"Ann Larkin"_s});
    startFor(u"Ann Larkin"_s);
    const auto picture = [&](const QString& name) {
        user.shot(path(name));
        return QImage(path(name));
    };
    for (const bool box : {false, true}) {
        box ? user.key(u"Alt+D"_s) : user.menu(u"mnuAbout"_s);
        const QImage start = picture(u"start.png"_s);
        keys({u"Tab"_s, u"Shift+Tab"_s});
        EXPECT_EQ(start, picture(u"back.png"_s)) << box << ": the ring comes with the first Tab only";
        user.key(u"Escape"_s);
        EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
    }
}

TEST_F(Keyboard, AQuestionThatDestroysIsAnsweredNoByEnterAndByEsc) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Taxes (PersonID, Company) VALUES (1, 'one')"_s);
    exec(u"INSERT INTO AssetLiquidation (Seq, Asset) VALUES (1, 'Clock')"_s);
    startFor(u"Ann Larkin"_s);
    for (const QString& key : {u"Return"_s, u"Escape"_s}) {
        for (const QString& entry : {u"mNew"_s, u"mOpen"_s}) {
            user.menu(entry);
            EXPECT_TRUE(boxTitle().endsWith(u"Confirmation"_s));
            user.key(key);
            if (entry == u"mNew"_s) user.key(u"Return"_s);
            EXPECT_EQ(boxTitle(), QString());
        }
        for (const QString& node : {u"Taxes"_s, u"AssetLiquidation"_s}) {
            openNode(node);
            user.click(u"cmdDelete"_s);
            EXPECT_EQ(boxTitle(), u"Delete Confirmation"_s);
            user.key(key);
            EXPECT_EQ(boxTitle(), QString());
        }
        // To close is to drop what was typed.
        openNode(u"Taxes"_s);
        user.fill(u"txtFields(1)"_s, u"typed"_s);
        user.key(u"Escape"_s);
        EXPECT_EQ(boxTitle(), u"Close Confirmation"_s);
        user.key(key);
        EXPECT_EQ(user.text(u"txtFields(1)"_s), u"typed"_s);
        keys({u"Alt+E"_s, u"Alt+C"_s});
        EXPECT_EQ(cell(u"SELECT (SELECT Count(*) FROM Taxes) + (SELECT Count(*) FROM AssetLiquidation)"_s), u"2"_s);
    }
}

TEST_F(Keyboard, TheToolbarCopiesAndCutsWhatIsSelected) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Taxes (PersonID, Company, Phone) VALUES (1, 'clip', 'kept')"_s);
    openFor(u"Ann Larkin"_s, u"Taxes"_s);
    user.click(u"txtFields(1)"_s);
    user.key(u"Ctrl+A"_s);
    user.tool(u"tbCopy"_s);
    user.click(u"txtFields(2)"_s);
    user.key(u"Ctrl+A"_s);
    user.menu(u"mPaste"_s);
    EXPECT_EQ(user.text(u"txtFields(2)"_s), u"clip"_s);
    user.key(u"Ctrl+A"_s);
    user.tool(u"tbCut"_s);
    EXPECT_EQ(user.text(u"txtFields(2)"_s), QString());
    user.tool(u"tbPaste"_s);
    EXPECT_EQ(user.text(u"txtFields(2)"_s), u"clip"_s);
    EXPECT_EQ(focus(), u"txtFields(2)"_s);
    // The same from the keyboard, over the menu bar.
    keys({u"Ctrl+A"_s, u"F10"_s, u"Right"_s, u"Down"_s, u"Return"_s});
    EXPECT_EQ(user.text(u"txtFields(2)"_s), QString());
}

// The tree ---------------------------------------------------------------------------------------------------------

TEST_F(Keyboard, TheTreeOpensANodeByEnterOrAfterAPauseAndKeepsItsLetters) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Passports (PersonID) VALUES (1)"_s);
    exec(u"INSERT INTO Parents (PersonID) VALUES (1)"_s);
    openFor(u"Ann Larkin"_s, u"Parents"_s);
    user.click(u"cmdClose"_s);
    user.key(u"Shift+F6"_s);
    ASSERT_EQ(focus(), u"tvTree"_s);
    keys({u"Home"_s});
    user.type(u"Pare"_s);
    EXPECT_EQ(selectedNode(), u"Parents"_s);
    rest();
    EXPECT_EQ(focus(), u"tvTree"_s);
    EXPECT_FALSE(forms().contains(u"frmParents"_s)) << "letters open nothing";
    for (const QString& key : {u"Return"_s, u"Space"_s}) {
        pause();
        user.key(key);
        EXPECT_EQ(activeWindow(), u"frmParents"_s);
        EXPECT_NE(focus(), u"tvTree"_s);
        user.click(u"cmdClose"_s);
        user.key(u"Shift+F6"_s);
        user.key(u"Home"_s);
        pause();
        user.type(u"Pare"_s);
    }
    pause();
    user.type(u"Medical I"_s);
    EXPECT_EQ(selectedNode(), u"Medical Information"_s) << "a blank within a name opens nothing";
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
    pause();
    user.type(u"Pare"_s);
    user.key(u"Down"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s) << "nothing opens while the arrows go on";
    user.key(u"Up"_s);
    rest();
    EXPECT_EQ(activeWindow(), u"frmParents"_s);
    EXPECT_EQ(focus(), u"tvTree"_s);
    user.type(u"Pass"_s);
    EXPECT_EQ(user.text(u"txtFields(1)"_s), QString());
    // The node of the window in front leads back into it.
    user.node(u"Parents"_s);
    user.key(u"Shift+F6"_s);
    user.key(u"Return"_s);
    EXPECT_NE(focus(), u"tvTree"_s);
}

TEST_F(Keyboard, TheButtonsOfTheRecordHaveTheirKeysFromTheTreeToo) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Taxes (PersonID, Company) VALUES (1, 'one')"_s);
    openFor(u"Ann Larkin"_s, u"Taxes"_s);
    user.click(u"txtFields(1)"_s);
    user.key(u"Shift+F6"_s);
    user.key(u"Alt+E"_s);
    EXPECT_EQ(status(), u"Edit record"_s) << "the letter is the button's, not the menu's";
    user.type(u"two"_s);
    for (const QString& stop : {u"tvTree"_s, u"cbPerson"_s}) {
        keys(stop == u"tvTree"_s ? QStringList{u"Shift+F6"_s} : QStringList{u"Alt+E"_s, u"F6"_s});
        ASSERT_EQ(focus(), stop);
        user.key(u"Ctrl+S"_s);
        EXPECT_EQ(status(), u"Record: 1 of 1"_s);
    }
    EXPECT_EQ(cell(u"SELECT Company FROM Taxes"_s), u"two"_s);
    user.key(u"Alt+L"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
}

TEST_F(Keyboard, TabStaysInFrontAndF6GoesRound) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO HomeOwned (PersonID) VALUES (1)"_s);
    openFor(u"Ann Larkin"_s, u"Home"_s);
    user.key(u"Alt+E"_s);
    user.type(u"typed"_s);
    const QStringList round{u"cbPerson"_s, u"tvTree"_s, u"txtFields(1)"_s};
    for (const QString& stop : round) {
        user.key(u"F6"_s);
        EXPECT_EQ(focus(), stop);
    }
    for (int i = 1; i >= -1; --i) {
        user.key(u"Shift+F6"_s);
        EXPECT_EQ(focus(), round[(i + 3) % 3]);
    }
    keys({u"F6"_s, u"F6"_s});
    EXPECT_EQ(focus(), u"tvTree"_s);
    for (int i = 0; i < 40; ++i) {
        user.key(i < 20 ? u"Tab"_s : u"Shift+Tab"_s);
        ASSERT_EQ(activeWindow(), u"frmHomesOwned"_s);
        if (i == 19) keys({u"F6"_s, u"F6"_s});
    }
    EXPECT_EQ(user.text(u"txtFields(1)"_s), u"typed"_s);
}

TEST_F(Keyboard, TabGoesInReadingOrder) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Doctors (Name) VALUES ('Dr. Hale')"_s);
    exec(u"INSERT INTO RetirementAccounts (PersonID) VALUES (1)"_s);
    openFor(u"Ann Larkin"_s, u"Doctors"_s);
    EXPECT_EQ(focus(), u"txtFields(0)"_s);
    user.key(u"Shift+Tab"_s);
    EXPECT_EQ(focus(), u"cbSelect"_s);
    keys({u"Tab"_s, u"Tab"_s});
    EXPECT_EQ(focus(), u"txtFields(1)"_s);
}

// Commands ---------------------------------------------------------------------------------------------------------

TEST_F(Keyboard, HelpComesByItsKeyAndGoesByEsc) {
    openFor({u"Ann Larkin"_s}, u"Ann Larkin"_s, u"Birth"_s);
    user.key(u"F1"_s);
    EXPECT_TRUE(user.session()["gbHelpOpened"_L1].toBool());
    EXPECT_EQ(focus(), QString()) << "the help has the keys";
    user.key(u"Escape"_s);
    EXPECT_EQ(focus(), u"txtFields(0)"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
    user.menu(u"mFind"_s);
    user.key(u"F1"_s);
    EXPECT_EQ(focus(), QString()) << "the help has the keys before a dialog too";
    user.key(u"Escape"_s);
    EXPECT_EQ(focus(), u"txtFind"_s);
    user.type(u"ann"_s);
    EXPECT_EQ(user.text(u"txtFind"_s), u"ann"_s);
}

TEST_F(Keyboard, TheLetterOfTwoCommandsIsTheButtonsAndTheMenuBarHasItsOwnKeys) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO Taxes (PersonID) VALUES (1), (1)"_s);
    openFor(u"Ann Larkin"_s, u"Taxes"_s);
    for (int i = 0; i < 3; ++i) {
        user.key(u"Alt+E"_s);
        EXPECT_EQ(status(), u"Edit record"_s);
        user.key(u"Alt+C"_s);
    }
    // File, Edit, Options, Window: the list of windows.
    for (const QString& key : {u"F10"_s, u"Alt"_s}) {
        keys({key, u"Right"_s, u"Right"_s, u"Right"_s});
        if (key == u"Alt"_s) user.key(u"Down"_s);
        user.key(u"Return"_s);
        EXPECT_EQ(activeWindow(), u"frmKinbook"_s) << key.toStdString();
        openNode(u"Taxes"_s);
    }
}

TEST_F(Keyboard, AStateIsCompletedWhileItIsTyped) {
    addMembers({u"Ann Larkin"_s});
    exec(u"INSERT INTO HomeOwned (PersonID) VALUES (1)"_s);
    openFor(u"Ann Larkin"_s, u"Home"_s);
    user.key(u"Alt+E"_s);
    user.click(u"cbFields(1)"_s);
    struct Step {
        QString key, shown;
        int selected;
    };
    for (const Step& step : {Step{u"t"_s, u"Tennessee"_s, 8}, Step{u"e"_s, u"Tennessee"_s, 7},
                             Step{u"x"_s, u"Texas"_s, 2}, Step{u"Backspace"_s, u"Tex"_s, 0}, Step{u"q"_s, u"Texq"_s, 0},
                             Step{u"Backspace"_s, u"Tex"_s, 0}, Step{u"a"_s, u"Texas"_s, 1}}) {
        user.key(step.key);
        const QJsonObject combo = user.control(u"cbFields(1)"_s);
        EXPECT_EQ(combo["text"_L1].toString(), step.shown);
        EXPECT_EQ(combo["selLength"_L1].toInt(), step.selected) << step.shown.toStdString();
    }
    user.key(u"Ctrl+S"_s);
    EXPECT_EQ(cell(u"SELECT State FROM HomeOwned"_s), u"Texas"_s);
}

}  // namespace
