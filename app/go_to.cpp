#include "app/go_to.h"

#include "app/dispatch.h"
#include "app/family_selector.h"
#include "app/host_panel.h"
#include "app/open_windows.h"
#include "app/shown_rows.h"
#include "data/tables.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form_window.h"
#include "platform/forms/mdi_frame.h"
#include "platform/forms/tree_view.h"
#include "screens/record_screen.h"
#include "session/data_window.h"
#include "session/record_locator.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace app {

GoTo::GoTo(platform::Desktop& desktop, HostPanel& panel, session::Session& session, OpenWindows& windows,
           FamilySelector& selector, Dispatch& dispatch)
    : desktop_(desktop),
      panel_(panel),
      session_(session),
      windows_(windows),
      selector_(selector),
      dispatch_(dispatch) {}

bool GoTo::goTo(const session::Place& place) {
    bool reached = false;
    desktop_.attempt(u"Go To Error"_s, [&] { reached = reach(place); });
    return reached;
}

bool GoTo::reach(const session::Place& place) {
    if (!admits()) return false;
    session::RecordLocator locator(session_.gConnection, shownRows());
    const std::optional<session::Location> target = locator.locate(data::table(place.table), place.record);
    if (!target) {
        tellGone();
        return false;
    }
    const session::ShownRows& shown = *target->shown;
    if (!select(place, *target) || !mayMove(shown)) return false;
    if (shown.siteTable) return openChild(shown, place, target->site);
    return open(shown.window, place.record, place.column);
}

// What may refuse --------------------------------------------------------------------------------------------------

bool GoTo::admits() {
    if (!dispatch_.admitsClick()) return false;
    // Before the first choice the tree is closed because nobody is selected, and the way begins with a choice.
    const bool isChosen = selector_.name() == session_.gsPersonName;
    if (!isChosen || panel_.tvTree().isEnabled()) return true;
    dispatch_.picture1_Click();
    return false;
}

bool GoTo::mayMove(const session::ShownRows& shown) {
    const auto holdsChanges = [this](const QString& name) {
        const auto* window = dynamic_cast<session::DataWindow*>(desktop_.find(name));
        return window && window->bChange;
    };
    if (!holdsChanges(shown.window) && !holdsChanges(shown.siteWindow)) return true;
    session::showScreenChanges(desktop_);
    return false;
}

void GoTo::tellGone() {
    desktop_.notice(u"This record isn't there any more."_s, u"No Such Record"_s);
}

bool GoTo::select(const session::Place& place, const session::Location& target) {
    const bool isCounted = place.attachedUnder == 0 || place.attachedUnder == session_.gPersonID;
    if (selector_.shows(target.member) && isCounted) return true;
    const bool showsThere = target.member == 0 || target.member == place.attachedUnder;
    if (!isCounted && showsThere) return selector_.choose(place.attachedUnder);
    return selector_.shows(target.member) || selector_.choose(target.member);
}

// The windows ------------------------------------------------------------------------------------------------------

session::DataWindow* GoTo::show(const QString& window) {
    const int node = dispatch_.nodeOf(window);
    if (node != 0) {
        dispatch_.nodeClick(node);
    } else {
        // The cover page, which a menu opens.
        windows_.touch(window)->fill();
    }
    auto* front = dynamic_cast<session::DataWindow*>(desktop_.host()->activeForm());
    return front && front->name() == window ? front : nullptr;
}

session::DataWindow* GoTo::open(const QString& window, qint64 record, const QString& column) {
    session::DataWindow* opened = show(window);
    if (!opened || opened->standOn(record, column)) return opened;
    // One that was open already may show the rows of before.
    if (!opened->unload()) return nullptr;
    opened = show(window);
    if (!opened || opened->standOn(record, column)) return opened;
    tellGone();
    return nullptr;
}

bool GoTo::openChild(const session::ShownRows& shown, const session::Place& place, qint64 site) {
    auto* parent = dynamic_cast<screens::RecordScreen*>(open(shown.siteWindow, site, {}));
    if (!parent) return false;
    parent->openChild(shown.window);
    auto* child = dynamic_cast<session::DataWindow*>(desktop_.host()->activeForm());
    return child && child->name() == shown.window && child->standOn(place.record, place.column);
}

}  // namespace app
