#include "screens/child_screen.h"

#include "platform/forms/text_box.h"
#include "screens/catalogue/record_rows.h"
#include "session/session.h"
#include "session/workspace.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {
constexpr int nameBox = 0;
constexpr int locationBox = 1;
constexpr int firstOwnBox = 2;
}  // namespace

ChildScreen::ChildScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                         const ScreenDefinition& definition)
    : RecordScreen(desktop, session, workspace, definition, OwnerBox::Name),
      txtTypeID_(*this, u"txtTypeID"_s, u"TypeID"_s),
      txtParentID_(*this, u"txtParentID"_s, u"ParentID"_s),
      txtOwnerID_(*this, u"txtOwnerID"_s, QString()) {
    makeKeyBox();
    connect(&static_cast<platform::TextBox&>(boxes().text(locationBox)), &QLineEdit::textChanged, this,
            &ChildScreen::keepLocation);
}

void ChildScreen::setParentRow(const session::ChildRequest& request) {
    setCaption(request.title);
    location_ = request.location;
    keepLocation();
    txtParentID_.setNumber(request.parentID);
    txtOwnerID_.setNumber(request.ownerID);
    txtTypeID_.setNumber(request.typeID);
}

void ChildScreen::keepLocation() {
    boxes().text(locationBox).setText(location_);
}

void ChildScreen::ShowMe() {
    typeID_ = txtTypeID_.number();
    parentID_ = txtParentID_.number();
    openRows(childStatement(definition(), typeID_, parentID_));
    bindBoxes();
    txtID().bind(&rows());
    txtParentID_.bind(&rows());
    txtTypeID_.bind(&rows());
    showOwner();
    bChange = false;
    if (rows().eof()) {
        beginEmpty();
    } else {
        setAttachKey();
    }
}

void ChildScreen::showOwner() {
    QString name;
    if (txtOwnerID_.isNumeric()) {
        lookUp(u"Select LegalName from Person where ID = "_s + txtOwnerID_.text());
        // The owner may have been deleted while the parent stood open.
        if (!rsLookup().eof()) name = rsLookup().value(u"LegalName"_s).toString();
    }
    boxes().text(nameBox).setText(name);
}

int ChildScreen::firstTyped() const {
    return firstOwnBox;
}

void ChildScreen::beginAdd() {
    RecordScreen::beginAdd();
    txtTypeID_.setNumber(typeID_);
    txtParentID_.setNumber(parentID_);
    bChange = false;
}

}  // namespace screens
