#include "screens/owned_screen.h"

#include <algorithm>

#include "platform/base/conversions.h"
#include "platform/base/runtime_error.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/desktop.h"
#include "platform/forms/text_control.h"
#include "screens/catalogue/record_rows.h"
#include "session/owner_names.h"
#include "session/session.h"
#include "session/workspace.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {
constexpr int ownerShadow = 0;
}  // namespace

OwnedScreen::OwnedScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                         const ScreenDefinition& definition)
    : RecordScreen(desktop, session, workspace, definition, OwnerBox::Combo),
      txtOwnerID_(*this, u"txtOwnerID"_s, u"PersonID"_s) {
    makeKeyBox();
}

// Load -------------------------------------------------------------------------------------------------------------

void OwnedScreen::Form_Load() {
    if (definition().reportsLoadFailure) {
        attemptLoad([this] { loadRows(); });
    } else {
        loadRows();
    }
}

void OwnedScreen::loadRows() {
    openRows(recordStatement(definition(), session().selection()));
    bindBoxes();
    fillStateCombos();
    showStateCombos();
    bindKeys();
    session::fillWithNames(desktop(), session().gConnection, owner());
    setCaption(recordCaption(definition(), session().selection()));
    loadOwner();
    bChange = false;
    if (rows().eof()) {
        beginEmpty();
    } else {
        setAttachKey();
    }
}

void OwnedScreen::bindKeys() {
    txtOwnerID_.bind(&rows());
    txtID().bind(&rows());
}

void OwnedScreen::loadOwner() {
    QString name;
    if (txtOwnerID_.isNumeric()) {
        lookUp(u"Select LegalName from Person where ID = "_s + txtOwnerID_.text());
        name = rsLookup().value(u"LegalName"_s).toString();
    }
    showOwner(name);
}

void OwnedScreen::showOwner(const QString& name) {
    owner().setText(name);
    boxes().text(ownerShadow).setText(name);
}

// Add --------------------------------------------------------------------------------------------------------------

void OwnedScreen::beginAdd() {
    owner().setLocked(false);
    const QString sSavedName = owner().text().isEmpty() ? workspace().defaultOwner() : owner().text();
    session::fillWithNames(desktop(), session().gConnection, owner());
    owner().setText(sSavedName);
    RecordScreen::beginAdd();
}

// Save -------------------------------------------------------------------------------------------------------------

QString OwnedScreen::requiredName() const {
    return owner().text();
}

void OwnedScreen::prepareSave() {
    RecordScreen::prepareSave();
    const QString name = owner().text();
    // The name goes in as it stands. Of two members with one name the row goes to the first that is found; an unknown
    // name leaves the row's owner as it is.
    lookUp(u"Select ID from Person where LegalName = '"_s + name + u"'"_s);
    if (rsLookup().eof()) return;
    const QString id = rsLookup().value(u"ID"_s).toString();
    if (!platform::isNumeric(id)) {
        txtOwnerID_.setText(u"0"_s);
        return;
    }
    txtOwnerID_.setText(id);
    boxes().text(ownerShadow).setText(name);
}

void OwnedScreen::showAfterAdd() {
    // The name chosen for the new row is none of the first row's, which is on screen: a save would make it its owner.
    showOwner(QString());
    lookUp(u"Select LegalName from Person where ID ="_s + txtOwnerID_.text());
    if (rsLookup().eof()) return;
    const QVariant name = rsLookup().value(u"LegalName"_s);
    if (name.isNull()) desktop().notice(u"Invalid name in database."_s);
    showOwner(session::ownerText(name.toString()));
}

void OwnedScreen::finishSave() {
    owner().setLocked(true);
}

// Cancel and delete ------------------------------------------------------------------------------------------------

void OwnedScreen::finishCancel() {
    // The record on screen need not be the one that was added or edited.
    if (txtOwnerID_.isNumeric()) {
        updateName();
    } else {
        showOwner(QString());
    }
    owner().setLocked(true);
}

void OwnedScreen::deleteRecord() {
    deleteCurrentRow();
    updateName();
}

// Moves ------------------------------------------------------------------------------------------------------------

void OwnedScreen::updateName() {
    // A walk comes by the records owner by owner.
    if (walking() && txtOwnerID_.text() == walkedOwner_) return;
    QString name;
    const bool found = desktop().attempt(u"UpdateName Error"_s, [&] { name = lookUpName(); });
    showOwner(name);
    walkedOwner_ = walking() && found ? txtOwnerID_.text() : QString();
}

QString OwnedScreen::lookUpName() {
    lookUp(u"Select LegalName from Person where ID = "_s + txtOwnerID_.text());
    return session::ownerText(rsLookup().eof() ? QString() : rsLookup().value(u"LegalName"_s).toString());
}

void OwnedScreen::goFirst() {
    rows().moveFirst();
    updateName();
    setAttachKey();
}

void OwnedScreen::goLast() {
    rows().moveLast();
    updateName();
    setAttachKey();
}

void OwnedScreen::goTo(double bookmark) {
    rows().setBookmark(bookmark);
    updateName();
    setAttachKey();
}

void OwnedScreen::goNext() {
    if (!rows().eof()) rows().moveNext();
    if (rows().eof()) {
        rows().moveLast();
        updateName();
        setLastRecord();
        return;
    }
    updateName();
    setAttachKey();
}

void OwnedScreen::goPrevious() {
    if (!rows().bof()) rows().movePrevious();
    if (rows().bof()) rows().moveFirst();
    updateName();
    setAttachKey();
}

// Checks -----------------------------------------------------------------------------------------------------------

bool OwnedScreen::validatesCombos() {
    // Leaving a state combo checks the owner too.
    if (session::validOwnerName(desktop(), session().gConnection, owner().text())) return true;
    owner().selectAll();
    return false;
}

// Child screens ----------------------------------------------------------------------------------------------------

void OwnedScreen::showChild(ChildKind kind) {
    const auto child = std::ranges::find(definition().children, kind, &ChildOffer::kind);
    const QString description = boxes().text("Description"_L1).text();
    const session::ChildRequest request{.title = childCaption(*child, description),
                                        .location = description,
                                        .typeID = definition().parentType,
                                        .parentID = txtID().number(),
                                        .ownerID = txtOwnerID_.number()};
    switch (kind) {
        case ChildKind::Inventory:
            workspace().showInventoryScreen(request);
            break;
        case ChildKind::Improvements:
            workspace().showImprovementsScreen(request);
            break;
        case ChildKind::Outbuildings:
            workspace().showOutbuildingsScreen(request);
            break;
    }
}

}  // namespace screens
