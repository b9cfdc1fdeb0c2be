#pragma once

#include <QString>
#include <vector>

namespace platform {
class Desktop;
class Form;
}  // namespace platform

namespace session {
struct ChildRequest;
class DataWindow;
struct Session;
class Workspace;
}  // namespace session

namespace app {

class HostRows;

/// The windows that stand in the host: how one comes up, and whose changes would be lost.
class OpenWindows {
public:
    OpenWindows(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace, HostRows& rows);

    /// The data window of that name, loaded if it isn't yet; nullptr for a name that no window has.
    [[nodiscard]] session::DataWindow* touch(const QString& name);
    /// False, after telling why, in a session that may change nothing and would find no row. `counted`: what stands
    /// behind the count's "from".
    [[nodiscard]] bool mayOpen(const QString& counted);
    /// Opens the child screen over the rows that hang on one site. One that is open lets go of its rows first, unless
    /// the user won't lose its changes.
    void openChild(const QString& window, const QString& table, const session::ChildRequest& request);

    /// The active child holds unsaved changes.
    [[nodiscard]] bool activeHasChanges() const;
    /// A window is loaded besides the host (the owner of the help isn't one), and the active one holds changes.
    [[nodiscard]] bool leavesChanges() const;
    /// Asks every window that has something to lose, the latest first, or the active one ahead of them. False, and
    /// nothing is forgotten, when one stays.
    [[nodiscard]] bool agreeToClose(bool activeFirst);
    /// Unloads every window but the host. One that vetoes stays.
    void unloadAll();

private:
    [[nodiscard]] bool isHost(const platform::Form& form) const;
    [[nodiscard]] bool onlyHelpIsOpen() const;
    [[nodiscard]] std::vector<platform::Form*> windowsToAsk(bool activeFirst) const;

    platform::Desktop& desktop_;
    session::Session& session_;
    session::Workspace& workspace_;
    HostRows& rows_;
};

}  // namespace app
