#include "app/dispatch.h"

#include <algorithm>

#include "app/category_nodes.h"
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
        if (follow(CategoryTree::node(nodeIndex))) tree.setImage(nodeIndex, withData);
    });
}

int Dispatch::nodeOf(const QString& window) const {
    const platform::TreeView& tree = host_.tvTree();
    const auto opens = [&](int index) { return CategoryTree::node(index).opens == window; };
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

template <class Dialog>
Dialog& Dispatch::touchDialog() {
    platform::Desktop& desktop = host_.desktop();
    if (platform::Form* loaded = desktop.find(Dialog::formName())) return static_cast<Dialog&>(*loaded);
    return desktop.load(std::make_unique<Dialog>(desktop, host_.session()));
}

template <class Dialog>
bool Dispatch::showDialog() {
    touchDialog<Dialog>().showModal();
    return true;
}

template <class Page>
bool Dispatch::showPage() {
    host_.desktop().load(std::make_unique<Page>(host_.desktop())).showModal();
    return true;
}

bool Dispatch::follow(const CategoryNode& node) {
    struct Way {
        QLatin1StringView window;
        bool (Dispatch::*open)();
    };
    // What isn't simply a data window.
    static constexpr Way ways[] = {
        {"frmCategoryListHelp"_L1, &Dispatch::showPage<CategoryListHelp>},
        {"frmPinsAndPasswords"_L1, &Dispatch::openPins},
        {"frmSecurityInfo"_L1, &Dispatch::showPage<SecurityInfo>},
        {"frmLogin"_L1, &Dispatch::showDialog<security::Login>},
        {"frmChangePassword"_L1, &Dispatch::showDialog<security::ChangePassword>},
        {"frmChangePINPassword"_L1, &Dispatch::changePinPassword},
    };
    const auto* way = std::ranges::find(ways, node.opens, &Way::window);
    if (way != std::end(ways)) return (this->*way->open)();
    return node.opens.isEmpty() || openWindow(node);
}

bool Dispatch::requireMember(bool isSelected) const {
    if (isSelected) return true;
    host_.desktop().notice(
        u"No family member has been selected.  The PIN And Password screen is tied \r\n"
        "to specific family members.  Please select a family member."_s,
        u"No Family Member Selected"_s);
    return false;
}

bool Dispatch::openPins() {
    const session::Session& session = host_.session();
    if (requireMember(!session.gbWholeFamily && session.gPersonID != 0) && touchDialog<security::LoginPin>().admits())
        host_.touch(pinList)->show();
    return true;
}

bool Dispatch::changePinPassword() {
    // A password kept under nobody would open no list.
    if (!requireMember(host_.session().gPersonID != 0)) return false;
    if (host_.desktop().find(pinList)) {
        host_.desktop().notice(u"You must close the PINs and Passwords screen before you change the password."_s,
                               u"Close PINs and Passwords Screen"_s);
        return false;
    }
    return showDialog<security::ChangePinPassword>();
}

bool Dispatch::openWindow(const CategoryNode& node) {
    if (host_.count(QString(node.counts)) == 0 && !host_.session().gbCanEdit) {
        session::showNoDataNoLogin(host_.desktop());
        if (host_.activeForm()) host_.showFrontNode();
        return false;
    }
    session::DataWindow* window = host_.touch(node.opens);
    if (!window) return true;
    session::setFormAccess(*window, host_.session().gbCanEdit);
    window->show();
    return true;
}

}  // namespace app
