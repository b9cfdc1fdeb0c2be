#include "screens/person_screen.h"

#include <QScopeGuard>

#include "data/person_deletion.h"
#include "output/record_output.h"
#include "platform/forms/check_box.h"
#include "platform/forms/desktop.h"
#include "platform/forms/text_control.h"
#include "screens/catalogue/person_entry.h"
#include "screens/catalogue/record_rows.h"
#include "screens/person_ids.h"
#include "session/form_access.h"
#include "session/session.h"
#include "session/workspace.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {
constexpr auto legalNameColumn = "LegalName"_L1;
constexpr auto sexColumn = "Sex"_L1;
constexpr auto socialSecurityColumn = "SocSecNum"_L1;
constexpr int socialSecurityLength = 11;
}  // namespace

PersonScreen::PersonScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace)
    : RecordScreen(desktop, session, workspace, personEntry()) {}

QString PersonScreen::legalName() const {
    return boxes().text(legalNameColumn).text();
}

// Load -------------------------------------------------------------------------------------------------------------

void PersonScreen::Form_Load() {
    attemptLoad([this] {
        if (session().gbWholeFamily) session().gPersonID = getFirstPersonID(session().gConnection);
        openRows(recordStatement(definition(), session().selection()));
        bindBoxes();
        fillStateCombos();
        showStateCombos();
        setCaption(recordCaption(definition(), session().selection()));
        setAttachKey();
        setButtons(true);
        if ((rows().bof() && rows().eof()) || session().gbAddMember) {
            session().gbAddMember = false;
            if (workspace().selectedName().isEmpty()) workspace().setSelectedName(u"Whole Family"_s);
            bChange = false;
            cmdAdd_Click();
        }
        // Also behind an add that began here, unlike one that the button began.
        workspace().enableTree(true);
        session::setFormAccess(*this, session().gbCanEdit);
    });
}

// Add and save -----------------------------------------------------------------------------------------------------

bool PersonScreen::readyToSave() {
    if (legalName().isEmpty()) {
        desktop().notice(
            u"No legal name has been entered.  We cannot add a family member without a name.  Just enter the name in "
            "the Legal Name box and click the Save button and we can press on."_s,
            u"No Legal Name"_s);
        return false;
    }
    return true;
}

bool PersonScreen::finishAdd() {
    rows().moveLast();
    workspace().appendName(rows().value(u"LegalName"_s).toString());
    workspace().endFirstRun();
    boxes().bindCombos(&rows());
    rows().requery();
    bChange = false;
    return true;
}

void PersonScreen::finishSave() {
    workspace().refreshTree();
}

// Delete -----------------------------------------------------------------------------------------------------------

bool PersonScreen::confirmsDelete() {
    if (!RecordScreen::confirmsDelete()) return false;
    // The moves lead the session's member by his number, whoever is on screen.
    if (rows().value(u"ID"_s).toLongLong() == session().gPersonID) return true;
    return desktop().ask(u"The records that will be deleted with this member are those of "_s + doomedName() +
                             u", not those of "_s + legalName() + u".  Do you want to continue?"_s,
                         u"Delete Confirmation"_s, platform::Buttons::NoYes);
}

QString PersonScreen::doomedName() {
    lookUp(u"Select LegalName from Person where ID = "_s + QString::number(session().gPersonID));
    return rsLookup().eof() ? u"a member who is no longer there"_s : rsLookup().value(u"LegalName"_s).toString();
}

QString PersonScreen::deleteQuestion() {
    return u"Are you sure you want to delete "_s + legalName() + u"?"_s;
}

void PersonScreen::deleteRecord() {
    // The member of the session goes, who after moves need not be the one on screen.
    data::deletePersonsRows(session().gConnection, session().gPersonID);
    const QString name = legalName();
    deleteCurrentRow();
    workspace().removeName(name);
}

// Moves ------------------------------------------------------------------------------------------------------------

void PersonScreen::setPerson(qint16 id) {
    session().gPersonID = id;
}

void PersonScreen::goFirst() {
    rows().moveFirst();
    setPerson(getFirstPersonID(session().gConnection));
    setAttachKey();
}

void PersonScreen::goLast() {
    rows().moveLast();
    setPerson(getLastPersonID(session().gConnection));
    setAttachKey();
}

void PersonScreen::goTo(double bookmark) {
    rows().setBookmark(bookmark);
    setPerson(static_cast<qint16>(rows().value(u"ID"_s).toInt()));
    setAttachKey();
}

void PersonScreen::goNext() {
    if (!rows().eof()) {
        rows().moveNext();
        setPerson(getNextPersonID(session().gConnection, session().gPersonID));
    }
    if (rows().eof() && rows().recordCount() > 0) {
        desktop().beep();
        setLastRecord();
        rows().moveLast();
        setPerson(getLastPersonID(session().gConnection));
    }
    setAttachKey();
}

void PersonScreen::goPrevious() {
    if (!rows().bof()) {
        rows().movePrevious();
        setPerson(getPrevPersonID(session().gConnection, session().gPersonID));
    }
    if (rows().bof() && rows().recordCount() > 0) {
        desktop().beep();
        rows().moveFirst();
        setPerson(getFirstPersonID(session().gConnection));
    }
    setAttachKey();
}

QString PersonScreen::moveCompleteTitle() const {
    return u"Move Complete Error"_s;
}

void PersonScreen::walkAll(const std::function<bool()>& visit) {
    const qint16 person = session().gPersonID;
    const auto goesBack = qScopeGuard([&] {
        if (session().gbWholeFamily) return;
        // The walk would leave the first of all members selected under the view of another.
        setPerson(person);
        setAttachKey();
    });
    RecordScreen::walkAll(visit);
}

// Close ------------------------------------------------------------------------------------------------------------

void PersonScreen::cmdClose_Click() {
    if (!confirmsClosing()) return;
    workspace().enableTree(true);
    desktop().unloadAll([](const platform::Form& form) { return form.name() != u"MDIHost"_s; });
    workspace().clearSelection();
}

// Checks and aids --------------------------------------------------------------------------------------------------

bool PersonScreen::validates(int box) {
    bool valid = true;
    desktop().attempt(u"txtFieldsValidate Error"_s, [&] {
        if (box == boxes().indexOf(sexColumn)) {
            valid = sexIsValid();
        } else if (box == boxes().indexOf(socialSecurityColumn)) {
            valid = socialSecurityIsValid();
        } else {
            valid = RecordScreen::validates(box);
        }
    });
    return valid;
}

bool PersonScreen::sexIsValid() {
    platform::TextControl& box = boxes().text(sexColumn);
    const QString sex = box.text();
    if (sex == u"m"_s) box.setText(u"M"_s);
    if (sex == u"f"_s) box.setText(u"F"_s);
    if (box.text() == u"M"_s || box.text() == u"F"_s) return true;
    desktop().notice(u"Invalid entry in the Sex field."_s, u"Invalid Entry"_s);
    box.selectAll();
    return false;
}

bool PersonScreen::socialSecurityIsValid() {
    platform::TextControl& box = boxes().text(socialSecurityColumn);
    if (box.text().isEmpty() || box.text().size() == socialSecurityLength) return true;
    desktop().notice(
        u"The %1 field has an error in it.  Check to see that all the numbers are there in the proper grouping and "
        "that there are no spaces between a hyphen and a number or between numbers within a group.\r\n\r\n"
        "Before you Save or Cancel, you must enter the social security number correctly or delete the invalid entry."_s
            .arg(boxes().label(boxes().indexOf(socialSecurityColumn))),
        u"Invalid Social Security Number"_s);
    box.selectAll();
    return false;
}

void PersonScreen::Form_KeyUp(Qt::Key key) {
    platform::TextControl& box = boxes().text(socialSecurityColumn);
    if (activeControl() != &box || key == Qt::Key_Delete || key == Qt::Key_Backspace) return;
    desktop().attempt(u"txtFields_KeyUp Error"_s, [&] {
        const qsizetype length = box.text().size();
        if (length != 3 && length != 6) return;
        box.setText(box.text() + u'-');
        box.select(static_cast<int>(length) + 1, 0);
    });
}

output::SaveAllRequest PersonScreen::saveAllRequest() {
    output::SaveAllRequest request = RecordScreen::saveAllRequest();
    request.asksForText = true;
    request.noFileTitle = u"No File Name"_s;
    request.noFileText = u"No file name was specified.  No file was saved."_s;
    return request;
}

}  // namespace screens
