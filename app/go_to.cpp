#include "app/go_to.h"

#include <QScopeGuard>
#include <algorithm>

#include "app/dispatch.h"
#include "app/family_selector.h"
#include "app/host_panel.h"
#include "app/host_rows.h"
#include "app/open_windows.h"
#include "app/shown_rows.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form_window.h"
#include "platform/forms/mdi_frame.h"
#include "platform/forms/tree_view.h"
#include "screens/record_screen.h"
#include "session/data_window.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

/// The window in which a row of the table shows; nullptr for none.
const session::ShownRows* shownIn(const QString& table, const data::Recordset& row) {
    const auto all = shownRows();
    const auto shown = std::ranges::find_if(all, [&](const session::ShownRows& rows) {
        if (rows.table->name.compare(table, Qt::CaseInsensitive) != 0) return false;
        return rows.typeColumn.isEmpty() || row.value(rows.typeColumn).toInt() == rows.type;
    });
    return shown == all.end() ? nullptr : &*shown;
}

}  // namespace

GoTo::GoTo(platform::Desktop& desktop, HostPanel& panel, session::Session& session, HostRows& rows,
           OpenWindows& windows, FamilySelector& selector, Dispatch& dispatch)
    : desktop_(desktop),
      panel_(panel),
      session_(session),
      rows_(rows),
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
    const std::optional<Target> target = locate(place);
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

// Where it stands --------------------------------------------------------------------------------------------------

std::optional<GoTo::Target> GoTo::locate(const session::Place& place) {
    const auto lookUp = [this](const QString& table, qint64 record) -> data::Recordset& {
        return rows_.select(u"SELECT * from %1 where ID = %2"_s.arg(table).arg(record));
    };
    data::Recordset& row = lookUp(place.table, place.record);
    // Left open it would hold the file.
    const auto close = qScopeGuard([&] { row.release(); });
    const session::ShownRows* shown = row.eof() ? nullptr : shownIn(place.table, row);
    if (!shown) return {};
    Target target{.shown = shown};
    if (shown->areMembers()) target.member = static_cast<qint16>(place.record);
    if (shown->siteTable) {
        target.site = row.value(u"ParentID"_s).toLongLong();
        // The one look-up goes on to the site.
        if (lookUp(shown->siteTable->name, target.site).eof()) return {};
    }
    if (shown->haveOwners() || shown->siteTable) target.member = static_cast<qint16>(row.value(u"PersonID"_s).toInt());
    return target;
}

bool GoTo::select(const session::Place& place, const Target& target) {
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
