#include <gtest/gtest.h>

#include <QJsonArray>

#include "platform/base/clock.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class Monday : public platform::Clock {
public:
    [[nodiscard]] QDate today() const override { return {2026, 11, 23}; }
};

class ComingDatesWindow : public support::Household {
protected:
    ComingDatesWindow() {
        addMembers({u"Ann Larkin"_s, u"Bob O'Brien"_s});
        exec(
            u"UPDATE Person SET BirthDate = '1961-11-30' WHERE ID = 2;"
            "INSERT INTO CDs (PersonID, BankName, MaturityDate) VALUES"
            " (1, 'Old Bank', '2020-01-01'), (1, 'First & Last', '2027-02-15'), (2, 'Bobs', '2026-12-23')"_s);
    }

    void open(const QString& selection) {
        user.start();
        if (!selection.isEmpty()) user.pick(u"MDIHost.cbPerson"_s, selection);
        user.menu(u"mComing"_s);
    }
    QString summary() { return user.text(u"lblComing"_s); }

    Monday monday_;
    platform::ClockInPlace clock_{monday_};
};

const QString birthday = u"11/30/2026|In 7 days|Bob O'Brien|Birth Information|Bob O'Brien|Birthday"_s;
const QString bobsCD = u"12/23/2026|In 30 days|Bob O'Brien|CDs|Bobs|Maturity"_s;
const QString annsCD = u"2/15/2027|In 84 days|Ann Larkin|CDs|First & Last|Maturity"_s;

TEST_F(ComingDatesWindow, ShowsTheWholeFamilysDatesForTheDaysThatAreChosen) {
    exec(u"INSERT INTO Memberships (PersonID, OrgName, ExpirationDate) VALUES (1, 'Alpine Club', '2026-11-22')"_s);
    const QString ranOut = u"11/22/2026|Yesterday|Ann Larkin|Memberships|Alpine Club|Expiration Date"_s;
    // Before anybody is selected, from the host's own menu.
    open({});
    EXPECT_EQ(user.form()["caption"_L1].toString(), u"Coming Dates"_s);
    EXPECT_EQ(rows(), (QStringList{ranOut, birthday, bobsCD}));
    EXPECT_EQ(summary(), u"2 dates in the next 30 days, and 1 that ran out in the past 90 days."_s);
    user.click(u"cmdClose"_s);
    EXPECT_FALSE(treeEnabled());

    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    user.menu(u"mComing"_s);
    for (const QString& key : {u"Down"_s, u"End"_s, u"Down"_s})
        user.key(key);
    EXPECT_EQ(status(), u"Record: 3"_s);
    EXPECT_EQ(user.state()["beeps"_L1].toInt(), 1);
    user.pick(u"cbDays"_s, u"90 days"_s);
    EXPECT_EQ(rows(), (QStringList{ranOut, birthday, bobsCD, annsCD}));
    EXPECT_EQ(status(), u"Record: 3"_s) << "the same row stays the current one";
    // In the box of days the keys choose days.
    user.click(u"cbDays"_s);
    user.key(u"Escape"_s);
    user.key(u"Up"_s);
    user.type(u"7"_s);
    EXPECT_EQ(user.text(u"cbDays"_s), u"30 days"_s);
    EXPECT_EQ(status(), u"Record: 3"_s);
    EXPECT_EQ(rows().size(), 3);
    for (const QString& button : {u"cmdAdd"_s, u"cmdEdit"_s, u"cmdDelete"_s})
        EXPECT_FALSE(isVisible(button)) << button.toStdString();
}

TEST_F(ComingDatesWindow, PrintsAndSavesAsListsDo) {
    user.setPrinter(path(u"listing.pdf"_s));
    open(u"Whole Family"_s);
    user.menu(u"mSave"_s);
    user.choose(path(u"coming.txt"_s));
    const QString text = QString::fromUtf8(bytesOf(u"coming.txt"_s));
    EXPECT_TRUE(text.contains(u"The Coming Dates Listing As Of 23-Nov-26"_s)) << text.toStdString();
    const QStringList lines = text.split(u"\r\n"_s);
    EXPECT_EQ(lines.filter(u"Member"_s).value(0).simplified(), u"Date Days Member Category Record What"_s);
    EXPECT_EQ(lines.filter(u"11/30/2026"_s).value(0).simplified(),
              u"11/30/2026 In 7 days Bob O'Brien Birth Bob O'Brien Birthday"_s);
    user.tool(u"tbPrint"_s);
    const QJsonArray page = user.jobs()[0].toArray()[0].toArray();
    EXPECT_EQ(page[0]["text"_L1].toString().trimmed(), u"The Coming Dates Listing As Of 23-Nov-26"_s);

    exec(u"DELETE FROM CDs; UPDATE Person SET BirthDate = NULL"_s);
    user.pick(u"cbDays"_s, u"365 days"_s);
    EXPECT_EQ(rows(), QStringList());
    EXPECT_EQ(summary(), u"Nothing comes up in the next 365 days, and nothing ran out in the past 90 days."_s);
    EXPECT_EQ(status(), u"Record: 0"_s);
    for (const QString& key : {u"Return"_s, u"Down"_s, u"Home"_s})
        user.key(key);
    EXPECT_EQ(boxTitle(), u"No Entries"_s);
}

TEST_F(ComingDatesWindow, ARowLeadsToItsRecordAndTheRowsAreReadAnewBehindIt) {
    open(u"Whole Family"_s);
    user.pick(u"cbDays"_s, u"90 days"_s);
    user.selectTwice(u"grdDataGrid"_s, 1);
    EXPECT_EQ(activeWindow(), u"frmCDs"_s);
    EXPECT_EQ(user.text(u"Institution:"_s), u"Bobs"_s);
    user.menu(u"mComing"_s);
    user.select(u"grdDataGrid"_s, 2);
    user.key(u"Return"_s);
    EXPECT_EQ(activeWindow(), u"frmCDs"_s);
    EXPECT_EQ(user.text(u"Institution:"_s), u"First & Last"_s);
    EXPECT_EQ(focusLabel(), u"Maturity:"_s);
    change(u"Maturity:"_s, u"11/24/2026"_s);
    user.menu(u"mComing"_s);
    EXPECT_EQ(rows().value(0), u"11/24/2026|Tomorrow|Ann Larkin|CDs|First & Last|Maturity"_s);
    EXPECT_EQ(status(), u"Record: 1"_s) << "the row went ahead, and is still the current one";
    // A member's view shows the others' dates too; the record of another is reached by choosing him.
    user.pick(u"MDIHost.cbPerson"_s, u"Ann Larkin"_s);
    user.menu(u"mComing"_s);
    user.select(u"grdDataGrid"_s, 1);
    user.click(u"cmdOpen"_s);
    EXPECT_EQ(activeWindow(), u"frmKinbook"_s);
    EXPECT_EQ(user.text(u"Legal Name:"_s), u"Bob O'Brien"_s);
}

TEST_F(ComingDatesWindow, UnsavedChangesComeFirst) {
    openFor(u"Whole Family"_s, u"CDs"_s);
    user.fill(u"Institution:"_s, u"New Bank"_s);
    user.menu(u"mComing"_s);
    EXPECT_EQ(activeWindow(), u"frmCDs"_s);
    EXPECT_FALSE(dismissBox().isEmpty());
    EXPECT_FALSE(forms().contains(u"frmComing"_s));
}

}  // namespace
