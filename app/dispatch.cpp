#include "app/dispatch.h"

#include <algorithm>

#include "app/category_nodes.h"
#include "app/category_tree.h"
#include "app/family_selector.h"
#include "app/information_dialogs.h"
#include "app/open_windows.h"
#include "app/tree_pictures.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form_window.h"
#include "platform/forms/mdi_frame.h"
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
constexpr int mostForms = 10;
const QString pinList = u"frmPinsAndPasswords"_s;
}  // namespace

Dispatch::Dispatch(platform::TreeView& tree, platform::Desktop& desktop, session::Session& session,
                   CategoryTree& categories, FamilySelector& selector, OpenWindows& windows)
    : tree_(tree),
      desktop_(desktop),
      session_(session),
      categories_(categories),
      selector_(selector),
      windows_(windows) {}

void Dispatch::nodeClick(int nodeIndex) {
    desktop_.attempt(u"NodeClick Error"_s, [&] {
        if (!admitsClick()) return;
        categories_.setImage(iCurrentNode_);
        tree_.setImage(nodeIndex, withData);
        iCurrentNode_ = nodeIndex;
        if (follow(CategoryTree::node(nodeIndex))) tree_.setImage(nodeIndex, withData);
    });
}

bool Dispatch::admitsClick() {
    const bool changed = desktop_.count() > 1 && windows_.activeHasChanges();
    if (changed) {
        selector_.restoreName();
        session::showScreenChanges(desktop_);
    }
    if (!changed && !tooManyWindows()) return true;
    showFrontNode();
    return false;
}

int Dispatch::nodeOf(const QString& window) const {
    const auto opens = [&](int index) { return CategoryTree::node(index).opens == window; };
    // Some windows have two nodes.
    if (opens(iCurrentNode_)) return iCurrentNode_;
    for (int index = 1; index <= tree_.nodeCount(); ++index) {
        if (opens(index)) return index;
    }
    return 0;
}

void Dispatch::showFrontNode() {
    const platform::Form* front = desktop_.host()->activeForm();
    tree_.showNode(front ? nodeOf(front->name()) : 0);
}

void Dispatch::nodeToggled() {
    if (iCurrentNode_ > 1) categories_.setImage(iCurrentNode_);
}

bool Dispatch::tooManyWindows() const {
    if (desktop_.count() <= mostForms) return false;
    desktop_.notice(
        u"You have ten data windows open. You will soon exhaust your computer's resources.  Please close some data "
        "windows by clicking on the Close button at the lower right corner of the data window or the Cancel button "
        "at the bottom of the screen."_s,
        u"Too Many Data Windows Open"_s);
    return true;
}

template <class Dialog>
Dialog& Dispatch::touchDialog() {
    if (platform::Form* loaded = desktop_.find(Dialog::formName())) return static_cast<Dialog&>(*loaded);
    return desktop_.load(std::make_unique<Dialog>(desktop_, session_));
}

template <class Dialog>
bool Dispatch::showDialog() {
    touchDialog<Dialog>().showModal();
    return true;
}

template <class Page>
bool Dispatch::showPage() {
    desktop_.load(std::make_unique<Page>(desktop_)).showModal();
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
    desktop_.notice(
        u"No family member has been selected.  The PIN And Password screen is tied \r\n"
        "to specific family members.  Please select a family member."_s,
        u"No Family Member Selected"_s);
    return false;
}

bool Dispatch::openPins() {
    if (requireMember(!session_.gbWholeFamily && session_.gPersonID != 0) && touchDialog<security::LoginPin>().admits())
        windows_.touch(pinList)->show();
    return true;
}

bool Dispatch::changePinPassword() {
    // A password kept under nobody would open no list.
    if (!requireMember(session_.gPersonID != 0)) return false;
    if (desktop_.find(pinList)) {
        desktop_.notice(u"You must close the PINs and Passwords screen before you change the password."_s,
                        u"Close PINs and Passwords Screen"_s);
        return false;
    }
    return showDialog<security::ChangePinPassword>();
}

bool Dispatch::openWindow(const CategoryNode& node) {
    if (!windows_.mayOpen(node.counts)) {
        if (desktop_.host()->activeForm()) showFrontNode();
        return false;
    }
    session::DataWindow* window = windows_.touch(node.opens);
    if (!window) return true;
    session::setFormAccess(*window, session_.gbCanEdit);
    window->show();
    return true;
}

void Dispatch::picture1_Click() {
    if (tree_.isEnabled()) return;
    desktop_.notice(
        u"You have clicked on the Data Window Selection Box when it is disabled.  It is disabled either because (1) no "
        "family member has been selected and the large data window area to the right is empty or (2) you have a data "
        "window to the right of the sort that must be either saved or canceled before you can proceed (only Save and "
        "Cancel buttons are displayed at the bottom of the data window).\r\n\r\n"
        "(1) If no family member has been selected, select one by using the Select Whole Family or Individual drop "
        "down box in the upper left hand corner of the screen.\r\n\r\n"
        "(2) If you have a data window to the right that has only Save and Cancel buttons at the bottom, either save "
        "or cancel the data window and all will be well and you can then select another category."_s);
}

}  // namespace app
