#include <gtest/gtest.h>

#include <QApplication>
#include <QThread>
#include <QTimer>
#include <QWidget>
#include <atomic>

#include "app/shown_rows.h"
#include "session/place.h"
#include "session/workspace.h"
#include "tests/support/household.h"

using namespace Qt::StringLiterals;

namespace {

class GoTo : public support::Household {
protected:
    const QString selector = u"MDIHost.cbPerson"_s;

    /// Asks the host to go there, and returns when the way is done or a box is open.
    void go(const session::Place& place) {
        done_ = false;
        const auto walk = [this, place] {
            for (QWidget* window : QApplication::topLevelWidgets()) {
                if (auto* host = dynamic_cast<session::Workspace*>(window)) arrived_ = host->goTo(place);
            }
            QTimer::singleShot(20, qApp, [this] { done_ = true; });
        };
        QMetaObject::invokeMethod(qApp, walk, Qt::QueuedConnection);
        while (!done_ && user.dialog().isEmpty())
            QThread::msleep(5);
    }
    void waitForTheWay() {
        while (!done_)
            QThread::msleep(5);
    }
    bool arrived() {
        waitForTheWay();
        return arrived_;
    }
    /// Window, status line, focus and the selected name, as one text.
    QString standing() { return u"%1, %2, %3, %4"_s.arg(activeWindow(), status(), focus(), user.text(selector)); }
    void makeFamily() {
        addMembers({u"Ann Larkin"_s, u"Bob Larkin"_s, u"Cy O'Brien"_s, u"Ann Larkin"_s});
        for (const int owner : {1, 1, 2, 2, 3, 4}) {
            exec(u"INSERT INTO HomeOwned (PersonID, City) VALUES (%1, 'Ames')"_s.arg(owner));
            exec(u"INSERT INTO Education (PersonID) VALUES (%1)"_s.arg(owner));
            exec(u"INSERT INTO Obligations (PersonID, Type) VALUES (%1, %2)"_s.arg(owner).arg(owner == 2 ? 4 : 3));
        }
        exec(u"INSERT INTO Doctors (Name) VALUES ('Dr. Vale'), ('Dr. Hale')"_s);
        exec(u"INSERT INTO MedicalLog (PersonID, MedicalID) VALUES (1, 1), (2, 1), (2, 2)"_s);
        exec(u"INSERT INTO WhoGetsWhat (Item) VALUES ('Clock'), ('Ring')"_s);
        exec(u"INSERT INTO Inventory (TypeID, ParentID, Type) VALUES (1, 4, 'Chair'), (2, 4, 'Lamp'), (1, 4, 'Bed')"_s);
        exec(u"INSERT INTO CoverPage (Heading1) VALUES ('The book')"_s);
    }

private:
    std::atomic<bool> done_ = false;
    bool arrived_ = false;
};

TEST_F(GoTo, EveryKindOfWindowComesUpOnTheRecordWithTheFocusInTheField) {
    makeFamily();
    struct Case {
        QString selected;
        session::Place place;
        QString standing;
    };
    const QString family = u"Whole Family"_s;
    const QString ann = u"Ann Larkin"_s;
    const QString bob = u"Bob Larkin"_s;
    const Case cases[] = {
        // The family's view shows everybody's rows.
        {family, {u"HomeOwned"_s, 4, u"City"_s}, u"frmHomesOwned, Record: 4 of 6, txtFields(5), Whole Family"_s},
        {family, {u"Person"_s, 2, u"BirthDate"_s}, u"frmKinbook, Record: 2 of 4, txtFields(1), Whole Family"_s},
        // A member's view shows his rows and what is nobody's; for another's rows that one is chosen.
        {bob, {u"HomeOwned"_s, 4, u"City"_s}, u"frmHomesOwned, Record: 2 of 2, txtFields(5), Bob Larkin"_s},
        {bob, {u"Doctors"_s, 1, u"Name"_s}, u"frmDoctors, Record: 2 of 2, txtFields(0), Bob Larkin"_s},
        {ann, {u"HomeOwned"_s, 3, u"State"_s}, u"frmHomesOwned, Record: 1 of 2, cbFields(1), Bob Larkin"_s},
        {ann, {u"Person"_s, 2, u"LegalName"_s}, u"frmKinbook, Record: 1 of 1, txtFields(0), Bob Larkin"_s},
        // No name leads to the one whom the look-up fails for, nor to the second of two with one name.
        {bob, {u"HomeOwned"_s, 5, u"City"_s}, u"frmHomesOwned, Record: 5 of 6, txtFields(5), Whole Family"_s},
        {bob, {u"HomeOwned"_s, 6, u"City"_s}, u"frmHomesOwned, Record: 6 of 6, txtFields(5), Whole Family"_s},
        // A window that gives the focus away when it comes up doesn't keep it.
        {bob, {u"Education"_s, 4, u"Comment"_s}, u"frmEducation, Record: 2 of 2, txtFields(12), Bob Larkin"_s},
        // One table behind several windows.
        {family, {u"Obligations"_s, 3, u"Name"_s}, u"frmMortgages, Record: 1 of 2, txtFields(1), Whole Family"_s},
        {family, {u"Obligations"_s, 2, u"Name"_s}, u"frmLoans, Record: 2 of 4, txtFields(1), Whole Family"_s},
        // Lists.
        {family, {u"MedicalLog"_s, 3, u"Description"_s}, u"frmMedicalLog, Record: 3, grdDataGrid, Whole Family"_s},
        {ann, {u"MedicalLog"_s, 3, u"Description"_s}, u"frmMedicalLog, Record: 2, grdDataGrid, Bob Larkin"_s},
        {ann, {u"WhoGetsWhat"_s, 2, u"Item"_s}, u"frmWhoGetsWhat, Record: 2, grdDataGrid, Ann Larkin"_s},
        // What hangs on a site, and the page that no node opens.
        {ann, {u"Inventory"_s, 3, u"Type"_s}, u"frmInventory, Record: 2 of 2, txtFields(2), Bob Larkin"_s},
        {ann, {u"CoverPage"_s, 1, u"Heading1"_s}, u"frmCoverPage, Record: 1 of 1, txtFields(0), Ann Larkin"_s},
    };
    user.start();
    for (const Case& row : cases) {
        user.pick(selector, row.selected);
        go(row.place);
        EXPECT_TRUE(arrived());
        EXPECT_EQ(standing(), row.standing) << qPrintable(row.place.table) << row.place.record;
        if (activeWindow() == u"frmWhoGetsWhat"_s) {
            EXPECT_EQ(user.grid()["current"_L1].toInt(), 1);
        }
    }
    // To and fro in an open window, and before anybody was chosen.
    go({u"Inventory"_s, 1, u"Type"_s});
    EXPECT_EQ(standing(), u"frmInventory, Record: 1 of 2, txtFields(2), Bob Larkin"_s);
    user.click(u"cmdClose"_s);
    EXPECT_EQ(user.text(u"City:"_s), u"Ames"_s) << "the site below";
    user.close();
    user.start();
    go({u"HomeOwned"_s, 4, u"City"_s});
    EXPECT_EQ(standing(), u"frmHomesOwned, Record: 2 of 2, txtFields(5), Bob Larkin"_s);
}

TEST_F(GoTo, WhatRefusesAClickOnTheTreeRefusesTheWayAndLeavesAllAsItWas) {
    makeFamily();
    openFor(u"Bob Larkin"_s, u"Home"_s);
    const session::Place inSight{u"HomeOwned"_s, 4, u"City"_s};
    const session::Place ofAnn{u"HomeOwned"_s, 1, u"City"_s};
    const auto refuses = [this](const session::Place& place, const QString& title) {
        const QString before = standing();
        const QStringList open = forms();
        go(place);
        EXPECT_EQ(boxTitle(), title);
        if (boxTitle().isEmpty()) return;
        user.answer(user.dialog()["buttons"_L1].toArray().last().toString());
        EXPECT_FALSE(arrived());
        EXPECT_EQ(standing(), before) << qPrintable(title);
        EXPECT_EQ(forms(), open) << qPrintable(title);
    };
    refuses({u"HomeOwned"_s, 99, u"City"_s}, u"No Such Record"_s);
    user.fill(u"Address:"_s, u"Elm Street"_s);
    refuses(inSight, u"Screen Changes"_s);
    refuses(ofAnn, u"Screen Changes"_s);
    // Changes in a window behind: its record stays, and the choice of another member asks what any choice asks.
    user.menu(u"mCoverPage"_s);
    ASSERT_EQ(activeWindow(), u"frmCoverPage"_s);
    refuses(inSight, u"Screen Changes"_s);
    refuses(ofAnn, u"Close Confirmation"_s);
}

TEST_F(GoTo, AClosedTreeSaysWhy) {
    makeFamily();
    openFor(u"Bob Larkin"_s, u"Home"_s);
    // Nothing is typed yet, but the tree is closed while a record is added.
    user.click(u"cmdAdd"_s);
    go({u"Doctors"_s, 1, u"Name"_s});
    EXPECT_TRUE(boxText().startsWith(u"You have clicked on the Data Window Selection Box when it is disabled."_s));
    user.answer(u"OK"_s);
    EXPECT_FALSE(arrived());
    EXPECT_EQ(status(), u"Add record"_s);
}

TEST_F(GoTo, AReadOnlySessionGoesWhereThereIsSomethingToSee) {
    makeFamily();
    write(u"SplashDef.txt"_s, "CompanyName=Larkmoor\r\nProductName=Kinbook\r\nValue=xy\r\nSplash=1\r\n");
    startFor(u"Ann Larkin"_s);
    go({u"Inventory"_s, 3, u"Type"_s});
    EXPECT_EQ(standing(), u"frmInventory, Record: 2 of 2, txtFields(2), Bob Larkin"_s);
    EXPECT_TRUE(isLocked(u"Type:"_s));
}

TEST_F(GoTo, AnAttachmentIsSoughtWhereItsKeyHasIt) {
    makeFamily();
    struct Case {
        QString key;
        QString place;
    };
    const Case cases[] = {
        {u"Hom_2_4"_s, u"HomeOwned 4 2"_s},
        {u"Hom_0_4"_s, u"HomeOwned 4 0"_s},
        {u"Kbk_2_0"_s, u"Person 2 2"_s},
        {u"Obl_2_3"_s, u"Obligations 3 2"_s},
        {u"MRec_3_0"_s, u"MedicalLog 3 0"_s},
        {u"WRec_2_0"_s, u"WhoGetsWhat 2 0"_s},
        {u"Inv_2_3"_s, u"Inventory 3 2"_s},
        {u"Xyz_2_3"_s, {}},
        {u"Hom_2"_s, {}},
        {{}, {}},
    };
    for (const Case& row : cases) {
        const std::optional<session::Place> place = session::placeOfAttachment(app::shownRows(), row.key);
        const QString told =
            place ? u"%1 %2 %3"_s.arg(place->table).arg(place->record).arg(place->attachedUnder) : QString();
        EXPECT_EQ(told, row.place) << qPrintable(row.key);
    }
    // A doctor's files are counted under the member who was selected when they were attached.
    exec(u"INSERT INTO Attachments (BugNum, SeqNum, FileName) VALUES ('Doc_2_1', 1, 'Doc_2_1_0.txt')"_s);
    startFor(u"Ann Larkin"_s);
    go(*session::placeOfAttachment(app::shownRows(), u"Doc_2_1"_s));
    EXPECT_TRUE(arrived());
    EXPECT_EQ(activeWindow() + status() + user.text(selector), u"frmDoctorsRecord: 2 of 2Bob Larkin"_s);
    EXPECT_EQ(user.text(u"lblAttachments"_s), u"Attachments:  1"_s);
}

}  // namespace
