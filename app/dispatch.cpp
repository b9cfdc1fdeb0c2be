#include "app/dispatch.h"

#include "app/dispatch_table.h"
#include "app/information_dialogs.h"
#include "app/mdi_host.h"
#include "platform/forms/desktop.h"
#include "platform/forms/tree_view.h"
#include "security/change_password.h"
#include "security/change_pin_password.h"
#include "security/login.h"
#include "security/login_pin.h"
#include "session/data_window.h"
#include "session/form_access.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {
constexpr int withData = 2;
constexpr int mostForms = 10;
const QString pinList = u"frmPinsAndPasswords"_s;
const QString pinsNode = u"PINsPasswords"_s;
}  // namespace

void Dispatch::nodeClick(int nodeIndex) {
    host_.desktop().attempt(u"NodeClick Error"_s, [&] {
        if (host_.desktop().count() > 1 && host_.activeHasChanges()) {
            host_.setSelectedName(host_.session().gsPersonName);
            session::showScreenChanges(host_.desktop());
            host_.showFrontNode();
            return;
        }
        if (tooManyWindows()) {
            host_.showFrontNode();
            return;
        }
        platform::TreeView& tree = host_.tvTree();
        host_.categories().setImage(host_.currentNode());
        tree.setImage(nodeIndex, withData);
        host_.setCurrentNode(nodeIndex);
        if (follow(tree.key(nodeIndex))) tree.setImage(nodeIndex, withData);
    });
}

int Dispatch::nodeOf(const QString& window) const {
    const platform::TreeView& tree = host_.tvTree();
    const auto opens = [&](int index) {
        const DispatchRow* row = dispatchRow(tree.key(index));
        return row ? QString(row->window) == window : window == pinList && tree.key(index) == pinsNode;
    };
    // Some windows have two nodes.
    if (opens(host_.currentNode())) return host_.currentNode();
    for (int index = 1; index <= tree.nodeCount(); ++index) {
        if (opens(index)) return index;
    }
    return 0;
}

bool Dispatch::tooManyWindows() const {
    if (host_.desktop().count() <= mostForms) return false;
    host_.desktop().notice(
        u"You have ten data windows open. You will soon exhaust your computer's resources.  Please close some data "
        "windows by clicking on the Close button at the lower right corner of the data window or the Cancel button "
        "at the bottom of the screen."_s,
        u"Too Many Data Windows Open"_s);
    return true;
}

bool Dispatch::follow(const QString& key) {
    if (const DispatchRow* row = dispatchRow(key)) return openWindow(*row);
    if (key == pinsNode) openPins();
    platform::Desktop& desktop = host_.desktop();
    if (key == u"SecurityInfo"_s) desktop.load(std::make_unique<SecurityInfo>(desktop)).showModal();
    if (key == u"CategoryListHelp"_s) desktop.load(std::make_unique<CategoryListHelp>(desktop)).showModal();
    if (key == u"LogIn"_s) touchDialog<security::Login>().showModal();
    if (key == u"ChangeMainPassword"_s) touchDialog<security::ChangePassword>().showModal();
    return key != u"ChangePINPassword"_s || changePinPassword();
}

template <class Dialog>
Dialog& Dispatch::touchDialog() {
    platform::Desktop& desktop = host_.desktop();
    if (platform::Form* loaded = desktop.find(Dialog::formName())) return static_cast<Dialog&>(*loaded);
    return desktop.load(std::make_unique<Dialog>(desktop, host_.session()));
}

bool Dispatch::requireMember(bool isSelected) const {
    if (isSelected) return true;
    host_.desktop().notice(
        u"No family member has been selected.  The PIN And Password screen is tied \r\n"
        "to specific family members.  Please select a family member."_s,
        u"No Family Member Selected"_s);
    return false;
}

void Dispatch::openPins() {
    const session::Session& session = host_.session();
    if (!requireMember(!session.gbWholeFamily && session.gPersonID != 0)) return;
    if (touchDialog<security::LoginPin>().admits()) host_.touch(pinList)->show();
}

bool Dispatch::changePinPassword() {
    // A password kept under nobody would open no list.
    if (!requireMember(host_.session().gPersonID != 0)) return false;
    if (host_.desktop().find(pinList)) {
        host_.desktop().notice(u"You must close the PINs and Passwords screen before you change the password."_s,
                               u"Close PINs and Passwords Screen"_s);
        return false;
    }
    touchDialog<security::ChangePinPassword>().showModal();
    return true;
}

bool Dispatch::openWindow(const DispatchRow& row) {
    if (host_.count(QString(row.counted)) == 0 && !host_.session().gbCanEdit) {
        session::showNoDataNoLogin(host_.desktop());
        if (host_.activeForm()) host_.showFrontNode();
        return false;
    }
    session::DataWindow* window = host_.touch(row.window);
    if (!window) return true;
    if (row.access == Access::Apply) session::setFormAccess(*window, host_.session().gbCanEdit);
    window->show();
    return true;
}

}  // namespace app
