#include <gtest/gtest.h>

#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class ChildScreen : public support::Household {
protected:
    void startWithSites() {
        addMembers({u"Ann Larkin"_s});
        for (const QString& table : {u"HomeOwned"_s, u"HomeRented"_s, u"BusinessRealEstate"_s, u"AgRealEstate"_s,
                                     u"RentalRealEstate"_s, u"UndevelopedRealEstate"_s, u"OtherRealEstate"_s}) {
            for (const QString& place : {u"Elm"_s, u"Oak"_s})
                exec(u"INSERT INTO %1 (PersonID, Description) VALUES (1, '%2')"_s.arg(table, place));
        }
        startFor(u"Ann Larkin"_s);
    }
    QString caption() { return user.form()["caption"_L1].toString(); }
};

TEST_F(ChildScreen, EverySiteOpensItsOwnChildrenUnderItsOwnNumber) {
    startWithSites();
    struct Offer {
        QString node, key, title, table;
        int type;
    };
    const Offer offers[] = {
        {u"Home"_s, u"Inventory"_s, u"House Inventory of Elm"_s, u"Inventory"_s, 1},
        {u"Home"_s, u"Improvements"_s, u"House Improvements of Elm"_s, u"Improvements"_s, 1},
        {u"Renter"_s, u"Inventory"_s, u"Rental Inventory of Elm"_s, u"Inventory"_s, 2},
        {u"BusinessSite"_s, u"Outbuildings"_s, u"Outbuildings of Elm"_s, u"Outbuildings"_s, 3},
        {u"AgLand"_s, u"Inventory"_s, u"Business Inventory of Elm"_s, u"Inventory"_s, 4},
        {u"Rentals"_s, u"Improvements"_s, u"Rental Improvements of Elm"_s, u"Improvements"_s, 5},
        {u"Undeveloped"_s, u"Inventory"_s, u"Inventory of Elm"_s, u"Inventory"_s, 6},
        {u"OtherRealEstate"_s, u"Outbuildings"_s, u"Outbuildings of Elm"_s, u"Outbuildings"_s, 7},
    };
    for (const Offer& offer : offers) {
        openNode(offer.node);
        const QString parent = activeWindow();
        user.tool(u"tb"_s + offer.key);
        EXPECT_EQ(caption(), offer.title);
        EXPECT_EQ(status(), u"Add record"_s);
        EXPECT_EQ(user.text(offer.key == u"Improvements"_s ? u"Owner:"_s : u"Person:"_s), u"Ann Larkin"_s);
        EXPECT_EQ(user.text(u"Location:"_s), u"Elm"_s);
        save(offer.key == u"Improvements"_s ? u"Year Completed:"_s : u"Year Purchased:"_s, u"1999"_s);
        EXPECT_EQ(
            cell(u"SELECT ParentID||'|'||YearPurchased FROM %1 WHERE TypeID = %2"_s.arg(offer.table).arg(offer.type)),
            u"1|1999.0"_s)
            << offer.title.toStdString();
        user.click(u"cmdClose"_s);
        EXPECT_EQ(activeWindow(), parent);
        user.click(u"cmdClose"_s);
    }
}

TEST_F(ChildScreen, TheLocationIsThatOfTheSiteWhateverIsTyped) {
    startWithSites();
    openNode(u"Home"_s);
    user.menu(u"mInventory"_s);
    user.fill(u"Location:"_s, u"Garage"_s);
    EXPECT_EQ(user.text(u"Location:"_s), u"Elm"_s);
    save(u"Type:"_s, u"Sofa"_s);
    // A paste reaches even a box that takes no typing.
    user.click(u"Type:"_s);
    user.key(u"Ctrl+A"_s);
    user.menu(u"mCopy"_s);
    user.click(u"Location:"_s);
    user.menu(u"mPaste"_s);
    EXPECT_EQ(user.text(u"Location:"_s), u"Elm"_s);
    EXPECT_EQ(cell(u"SELECT Type FROM Inventory"_s), u"Sofa"_s);
}

TEST_F(ChildScreen, AnotherSiteTakesTheWindowOverOnlyWithoutChanges) {
    startWithSites();
    openNode(u"Home"_s);
    user.menu(u"mInventory"_s);
    save(u"Type:"_s, u"Sofa"_s);
    user.fill(u"Type:"_s, u"Sofa bed"_s);
    // The way back to the site that doesn't ask.
    user.key(u"Ctrl+Tab"_s);
    for (int i = 0; i < 3 && activeWindow() != u"frmHomesOwned"_s; ++i)
        user.key(u"Ctrl+Tab"_s);
    ASSERT_EQ(activeWindow(), u"frmHomesOwned"_s);
    user.click(u"cmdNext"_s);
    user.menu(u"mInventory"_s);
    EXPECT_EQ(boxTitle(), u"Close Confirmation"_s);
    user.answer(u"No"_s);
    EXPECT_EQ(user.text(u"frmInventory.Type:"_s), u"Sofa bed"_s);
    user.menu(u"mInventory"_s);
    user.answer(u"Yes"_s);
    EXPECT_EQ(caption(), u"House Inventory of Oak"_s);
    EXPECT_EQ(user.text(u"Type:"_s), QString());
    save(u"Type:"_s, u"Lamp"_s);
    EXPECT_EQ(cell(u"SELECT group_concat(ParentID||Type) FROM Inventory"_s), u"1Sofa,2Lamp"_s);
}

TEST_F(ChildScreen, AReadOnlySessionSeesChildrenOnlyWhereThereAreSome) {
    write(u"SplashDef.txt"_s, "CompanyName=Larkmoor\r\nValue=secret\r\nSplash=1\r\n");
    exec(u"INSERT INTO Inventory (TypeID, ParentID, Type) VALUES (1, 1, 'Sofa')"_s);
    startWithSites();
    openNode(u"Home"_s);
    user.tool(u"tbInventory"_s);
    EXPECT_EQ(user.text(u"Type:"_s), u"Sofa"_s);
    EXPECT_TRUE(isLocked(u"Type:"_s));
    user.click(u"cmdClose"_s);
    user.tool(u"tbImprovements"_s);
    EXPECT_EQ(dismissBox(), u"Invalid Login"_s);
    EXPECT_FALSE(forms().contains(u"frmImprovements"_s));
}

TEST_F(ChildScreen, ASiteWhoseOwnerHasGoneStillShowsItsChildren) {
    startWithSites();
    openNode(u"Home"_s);
    exec(u"DELETE FROM Person"_s);
    user.tool(u"tbInventory"_s);
    EXPECT_EQ(activeWindow(), u"frmInventory"_s);
    EXPECT_EQ(user.text(u"Person:"_s), QString());
}

TEST_F(ChildScreen, ASiteWithoutARowHasNoChildren) {
    startWithSites();
    exec(u"DELETE FROM HomeOwned WHERE ID = 2"_s);
    openNode(u"Home"_s);
    deleteRecord();
    EXPECT_EQ(dismissBox(), u"Delete Error"_s);
    user.tool(u"tbInventory"_s);
    EXPECT_EQ(boxText(), u"13 - Type mismatch"_s);
    dismissBox();
    EXPECT_FALSE(forms().contains(u"frmInventory"_s));
}

}  // namespace
