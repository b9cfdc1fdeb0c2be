#include <gtest/gtest.h>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class Find : public support::Household {
protected:
    const QString selector = u"MDIHost.cbPerson"_s;

    void makeFamily() {
        addMembers({u"Ann Larkin"_s, u"Zoë Larkin"_s});
        exec(
            u"INSERT INTO HomeOwned (PersonID, City, Description) VALUES (1, 'Ames', 'Mill'), (2, 'Ames', 'Elm house')"_s);
        exec(u"INSERT INTO Inventory (TypeID, ParentID, Cost, Type) VALUES (1, 2, 1250.5, 'Zoë''s chair')"_s);
        exec(u"INSERT INTO WhoGetsWhat (Item, Person) VALUES ('Ring', 'Ann'), ('Clock', 'Zoë')"_s);
        exec(
            u"INSERT INTO Attachments (BugNum, SeqNum, FileName, OldFileName) VALUES "
            "('Hom_2_2', 1, 'Hom_2_2_0.pdf', 'Deed of Zoë.pdf')"_s);
    }
    int current() { return user.grid(u"lvFound"_s)["current"_L1].toInt(); }
    QString count() { return user.text(u"lblFound"_s); }
    bool isOpen() { return user.dialog()["name"_L1].toString() == u"frmFind"_s; }
};

TEST_F(Find, WhatIsTypedIsFoundAtOnceAndOpenedByTheKeyboard) {
    makeFamily();
    user.start();
    user.menu(u"mFind"_s);
    EXPECT_EQ(focus(), u"txtFind"_s);
    EXPECT_EQ(count(), QString());
    EXPECT_FALSE(isEnabled(u"cmdOpen"_s));
    user.type(u"zoe"_s);
    EXPECT_EQ(rows(u"lvFound"_s),
              (QStringList{u"Birth Information|Zoë Larkin|Legal Name|Zoë Larkin"_s,
                           u"Home(s), Inventory|Zoë Larkin|Type|Zoë's chair"_s, u"Who Gets What||Person|Zoë"_s,
                           u"Home(s)|Zoë Larkin|Attachment|Deed of Zoë.pdf"_s}));
    EXPECT_EQ(count(), u"4 places"_s);
    EXPECT_EQ(current(), 0);
    user.type(u" chair"_s);
    EXPECT_EQ(count(), u"1 place"_s);
    user.type(u"s"_s);
    EXPECT_EQ(count(), u"Nothing found"_s);
    EXPECT_FALSE(isEnabled(u"cmdOpen"_s));
    user.fill(u"txtFind"_s, u"zoe"_s);
    user.key(u"Down"_s);
    EXPECT_EQ(focus(), u"lvFound"_s);
    user.key(u"Up"_s);
    EXPECT_EQ(focus(), u"txtFind"_s);
    user.key(u"Down"_s);
    user.key(u"Down"_s);
    EXPECT_EQ(current(), 1);
    user.key(u"Return"_s);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(activeWindow() + focus() + user.text(selector), u"frmInventorytxtFields(2)Zoë Larkin"_s);
    // The next one begins with the same text, ready to be typed over; Enter in the box opens the first line.
    user.key(u"Ctrl+F"_s);
    EXPECT_EQ(user.text(u"txtFind"_s), u"zoe"_s);
    EXPECT_EQ(count(), u"4 places"_s);
    user.type(u"1,250"_s);
    EXPECT_EQ(rows(u"lvFound"_s), QStringList{u"Home(s), Inventory|Zoë Larkin|Cost|1,250.50"_s});
    user.key(u"Return"_s);
    EXPECT_EQ(activeWindow() + focus(), u"frmInventorytxtFields(3)"_s);
}

TEST_F(Find, ADoubleClickOrTheButtonOpensAPlaceAndAnAttachmentsRecord) {
    makeFamily();
    startFor(u"Ann Larkin"_s);
    user.menu(u"mFind"_s);
    user.type(u"ames"_s);
    EXPECT_EQ(rows(u"lvFound"_s), (QStringList{u"Home(s)|Ann Larkin|City|Ames"_s, u"Home(s)|Zoë Larkin|City|Ames"_s}));
    user.select(u"lvFound"_s, 1);
    user.click(u"cmdOpen"_s);
    EXPECT_EQ(activeWindow() + focus() + user.text(selector), u"frmHomesOwnedtxtFields(5)Zoë Larkin"_s);
    user.menu(u"mFind"_s);
    user.type(u"ames"_s);
    user.selectTwice(u"lvFound"_s, 1);
    EXPECT_EQ(activeWindow() + focus() + user.text(selector), u"frmHomesOwnedtxtFields(5)Ann Larkin"_s);
    user.menu(u"mFind"_s);
    user.type(u"deed"_s);
    user.click(u"cmdOpen"_s);
    EXPECT_EQ(activeWindow() + user.text(selector), u"frmHomesOwnedZoë Larkin"_s);
    EXPECT_EQ(user.text(u"lblAttachments"_s), u"Attachments:  1"_s);
    user.menu(u"mFind"_s);
    user.type(u"clock"_s);
    user.key(u"Return"_s);
    EXPECT_EQ(activeWindow() + focus(), u"frmWhoGetsWhatgrdDataGrid"_s);
    EXPECT_EQ(user.grid()["current"_L1].toInt(), 1);
}

TEST_F(Find, ItLeavesAllAsItWasWhenClosedOrRefused) {
    makeFamily();
    openFor(u"Ann Larkin"_s, u"Home"_s);
    user.fill(u"txtFields(5)"_s, u"Boone"_s);
    for (const QString& way : {u"Escape"_s, u"Alt+C"_s}) {
        user.key(u"Ctrl+F"_s);
        ASSERT_TRUE(isOpen());
        user.fill(u"txtFind"_s, u"clock"_s);
        user.key(way);
        EXPECT_FALSE(isOpen());
        EXPECT_EQ(activeWindow() + focus() + user.text(u"txtFields(5)"_s), u"frmHomesOwnedtxtFields(5)Boone"_s);
    }
    user.key(u"Ctrl+F"_s);
    user.key(u"Return"_s);
    EXPECT_EQ(dismissBox(), u"Screen Changes"_s);
    EXPECT_EQ(activeWindow() + user.text(u"txtFields(5)"_s), u"frmHomesOwnedBoone"_s);
    EXPECT_EQ(forms().size(), 3);
    // While a record is edited the menus are closed, and its shortcut with them.
    user.click(u"cmdEdit"_s);
    user.key(u"Ctrl+F"_s);
    EXPECT_FALSE(isOpen());
}

}  // namespace
