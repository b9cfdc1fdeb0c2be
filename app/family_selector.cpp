#include "app/family_selector.h"

#include <QGroupBox>

#include "app/category_tree.h"
#include "app/host_panel.h"
#include "app/host_rows.h"
#include "app/open_windows.h"
#include "platform/base/conversions.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/desktop.h"
#include "platform/forms/tree_view.h"
#include "screens/person_screen.h"
#include "session/data_window.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

const QString wholeFamily = u"Whole Family"_s;
const QString personScreen = u"frmKinbook"_s;

}  // namespace

FamilySelector::FamilySelector(HostPanel& panel, platform::Desktop& desktop, session::Session& session, HostRows& rows,
                               OpenWindows& windows, CategoryTree& categories)
    : panel_(panel), desktop_(desktop), session_(session), rows_(rows), windows_(windows), categories_(categories) {}

void FamilySelector::loadFamily() {
    desktop_.attempt(u"LoadFamily Error"_s, [this] {
        platform::ComboBox& selector = panel_.cbPerson();
        selector.clearList();
        data::Recordset& members = rows_.select(u"SELECT ID, Seq, LegalName from Person Order By Seq"_s);
        selector.addItem(wholeFamily);
        // The first member without a name ends the list.
        while (!members.eof() && !members.value(u"LegalName"_s).isNull()) {
            selector.addItem(members.value(u"LegalName"_s).toString());
            members.moveNext();
        }
        members.close();
        if (selector.isVisible()) selector.selectAll();
    });
}

// Selection --------------------------------------------------------------------------------------------------------

void FamilySelector::cbPerson_Click() {
    select();
}

bool FamilySelector::select() {
    bool chosen = false;
    desktop_.attempt(u"cbPersonClick Error"_s, [&] {
        if (windows_.leavesChanges()) {
            restoreName();
            session::showScreenChanges(desktop_);
            return;
        }
        const Selection before = selection();
        if (!accept()) {
            refuse();
            return;
        }
        if (!windows_.agreeToClose(panel_.tvTree().isEnabled())) {
            // A window that was opened for one member doesn't stand under another.
            putBack(before);
            return;
        }
        windows_.unloadAll();
        if (panel_.frame1().isVisible()) {
            if (session::DataWindow* screen = windows_.touch(personScreen)) screen->show();
        }
        categories_.setAllImages();
        chosen = true;
    });
    return chosen;
}

qint16 FamilySelector::memberNamed(const QString& name) {
    data::Recordset& members = rows_.select(u"SELECT ID from Person where LegalName = '"_s + name + u"'"_s);
    const qint16 member = members.eof() ? qint16{0} : platform::toInteger(members.value(u"ID"_s).toDouble());
    members.close();
    return member;
}

bool FamilySelector::accept() {
    session_.gsPersonName = name();
    session_.gPersonID = memberNamed(session_.gsPersonName);
    if (session_.gPersonID != 0) panel_.tvTree().setEnabled(true);
    session_.gbWholeFamily = session_.gsPersonName == wholeFamily && session_.gPersonID == 0;
    if (session_.gbWholeFamily) panel_.tvTree().setEnabled(true);
    return session_.gsPersonName == wholeFamily || session_.gPersonID != 0;
}

bool FamilySelector::shows(qint16 member) const {
    if (name() != session_.gsPersonName) return false;
    return session_.gbWholeFamily || member == 0 || member == session_.gPersonID;
}

QString FamilySelector::entryFor(qint16 member) {
    data::Recordset& row = rows_.select(u"SELECT LegalName from Person where ID = "_s + QString::number(member));
    const QString name = row.eof() ? QString() : row.value(u"LegalName"_s).toString();
    row.close();
    qint16 found = 0;
    // Of two members with one name the first is found, and a name with an apostrophe ends the statement.
    platform::Desktop::passOver([&] { found = memberNamed(name); });
    return found != 0 && found == member ? name : wholeFamily;
}

bool FamilySelector::choose(qint16 member) {
    const QString before = name();
    setName(entryFor(member));
    if (select()) return true;
    setName(before);
    return false;
}

FamilySelector::Selection FamilySelector::selection() const {
    return {session_.gsPersonName, session_.gPersonID, session_.gbWholeFamily, panel_.tvTree().isEnabled()};
}

void FamilySelector::putBack(const Selection& selection) {
    session_.gsPersonName = selection.name;
    session_.gPersonID = selection.id;
    session_.gbWholeFamily = selection.wholeFamily;
    panel_.enableTree(selection.treeEnabled);
    setName(selection.name);
}

void FamilySelector::refuse() {
    if (name().isEmpty()) return;
    desktop_.notice(
        u"The name, "_s + name() +
            u", does not match any of the family member names that you have already entered.  Either (1) the spelling "
            "is different or (2) this family member has not yet been entered.\r\n\r\n"
            "(1) If the spelling is different, the easiest way to get the correct spelling is to click on the "
            "down-arrow button on the Select Whole Family or Individual drop down box in the upper left hand corner "
            "of the screen and select the correct name from the list that drops down.  You will then be able to see "
            "the data window for the selected family member or for the whole family.\r\n\r\n"
            "(2) If the family member has not yet been entered into the computer, you may click on the Enter Another "
            "Family Member button at the upper left hand corner of the screen.  You will then have no trouble "
            "entering the information for this new family member.\r\n\r\n"
            "Go for it...."_s,
        u"No Matching Family Member"_s);
    panel_.cbPerson().selectAll();
}

void FamilySelector::cmdAddNew_Click() {
    desktop_.attempt(u"Form Load Error"_s, [this] {
        if (windows_.leavesChanges()) {
            session::showScreenChanges(desktop_);
            return;
        }
        const bool usual = panel_.cmdAddNew().text() == HostPanel::usualAddCaption();
        if (name().isEmpty() && usual) {
            desktop_.notice(
                u"You must have an Individual or Whole Family selected before you can add another family member."_s,
                u"Missing Selection"_s);
            return;
        }
        panel_.tvTree().setEnabled(false);
        categories_.setAllImages();
        const bool addsAtOnce = desktop_.count() > 1 && usual;
        if (!addsAtOnce) session_.gbAddMember = true;
        session::DataWindow* screen = windows_.touch(personScreen);
        screen->show();
        if (addsAtOnce) static_cast<screens::PersonScreen*>(screen)->pressAdd();
    });
}

// The name ---------------------------------------------------------------------------------------------------------

QString FamilySelector::name() const {
    return panel_.cbPerson().text();
}

void FamilySelector::setName(const QString& name) {
    panel_.cbPerson().setText(name);
}

void FamilySelector::restoreName() {
    setName(session_.gsPersonName);
}

void FamilySelector::appendName(const QString& name) {
    panel_.cbPerson().addItem(name);
}

void FamilySelector::removeName(const QString& name) {
    platform::ComboBox& selector = panel_.cbPerson();
    const int entries = selector.listCount();
    // The entry behind a removed one moves up and is passed over.
    for (int i = 0; i < entries; ++i) {
        if (selector.list(i) == name) selector.removeEntry(i);
    }
}

void FamilySelector::clear() {
    panel_.cbPerson().setListIndex(-1);
    panel_.cbPerson().setFocus();
}

QString FamilySelector::defaultOwner() const {
    if (const auto* screen = dynamic_cast<screens::PersonScreen*>(desktop_.find(personScreen))) {
        return screen->legalName();
    }
    return session_.gPersonID != 0 ? session_.gsPersonName : QString();
}

void FamilySelector::selectWholeName() {
    panel_.cbPerson().selectAll();
}

}  // namespace app
