#include "app/open_windows.h"

#include <algorithm>

#include "app/help_viewer.h"
#include "app/host_rows.h"
#include "app/windows.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form_window.h"
#include "platform/forms/mdi_frame.h"
#include "screens/child_screen.h"
#include "session/data_window.h"
#include "session/form_access.h"
#include "session/refusals.h"
#include "session/session.h"
#include "session/workspace.h"

using namespace Qt::StringLiterals;

namespace app {

OpenWindows::OpenWindows(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                         HostRows& rows)
    : desktop_(desktop), session_(session), workspace_(workspace), rows_(rows) {}

// Opening ----------------------------------------------------------------------------------------------------------

session::DataWindow* OpenWindows::touch(const QString& name) {
    if (auto* loaded = dynamic_cast<session::DataWindow*>(desktop_.find(name))) {
        if (!loaded->loadFailed() || !loaded->unload()) return loaded;
    }
    std::unique_ptr<session::DataWindow> window = makeWindow(name, desktop_, session_, workspace_);
    return window ? &desktop_.load(std::move(window)) : nullptr;
}

bool OpenWindows::mayOpen(const QString& counted) {
    if (rows_.count(counted) != 0 || session_.gbCanEdit) return true;
    session::showNoDataNoLogin(desktop_);
    return false;
}

void OpenWindows::openChild(const QString& window, const QString& table, const session::ChildRequest& request) {
    if (!mayOpen(u"%1 Where TypeID = %2 And ParentID = %3"_s.arg(table).arg(request.typeID).arg(request.parentID)))
        return;
    if (platform::Form* open = desktop_.find(window)) {
        if (!open->unload()) return;
    }
    auto* child = static_cast<screens::ChildScreen*>(touch(window));
    child->setParentRow(request);
    session::setFormAccess(*child, session_.gbCanEdit);
    child->fill();
    child->show();
}

// Changes ----------------------------------------------------------------------------------------------------------

bool OpenWindows::activeHasChanges() const {
    const auto* active = dynamic_cast<session::DataWindow*>(desktop_.host()->activeForm());
    return active && active->bChange;
}

bool OpenWindows::onlyHelpIsOpen() const {
    return session_.gbHelpOpened && desktop_.count() == 2 && desktop_.find(HelpViewer::ownerName());
}

bool OpenWindows::leavesChanges() const {
    return desktop_.count() > 1 && !onlyHelpIsOpen() && activeHasChanges();
}

// Closing ----------------------------------------------------------------------------------------------------------

bool OpenWindows::isHost(const platform::Form& form) const {
    return &form == desktop_.host();
}

std::vector<platform::Form*> OpenWindows::windowsToAsk(bool activeFirst) const {
    std::vector<platform::Form*> windows;
    for (int i = desktop_.count() - 1; i >= 0; --i) {
        if (!isHost(desktop_.at(i))) windows.push_back(&desktop_.at(i));
    }
    if (activeFirst && !onlyHelpIsOpen() && activeHasChanges())
        windows.insert(windows.begin(), desktop_.host()->activeForm());
    return windows;
}

bool OpenWindows::agreeToClose(bool activeFirst) {
    const std::vector<platform::Form*> windows = windowsToAsk(activeFirst);
    std::vector<session::DataWindow*> changed;
    for (platform::Form* form : windows) {
        auto* window = dynamic_cast<session::DataWindow*>(form);
        if (window && window->bChange) changed.push_back(window);
    }
    if (std::ranges::all_of(windows, &platform::Form::agreesToClose)) return true;
    // A Yes counts only when all of them go: the windows stay, and so does what is typed in them.
    for (session::DataWindow* window : changed)
        window->bChange = true;
    return false;
}

void OpenWindows::unloadAll() {
    desktop_.unloadAll([this](const platform::Form& form) { return !isHost(form); });
}

}  // namespace app
