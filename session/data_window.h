#pragma once

#include <functional>

#include "platform/forms/form_window.h"

namespace session {

struct Session;
struct WindowCommands;
class Workspace;

/// A window with the family's data, a child of the host.
class DataWindow : public platform::FormWindow {
    Q_OBJECT

public:
    DataWindow(platform::Desktop& desktop, Session& session, Workspace& workspace, const QString& name);

    /// The window holds unsaved changes. The host reads it before it lets the user leave.
    bool bChange = false;

    void Form_QueryUnload(bool& cancel) override;
    /// Reads the rows of a window that doesn't read them while it loads.
    virtual void ShowMe() {}
    /// ShowMe, right before the host shows the window. One whose rows can't be read goes, so that the next try makes it
    /// anew; the failure goes to the caller.
    void fill();
    /// Goes to the row with that ID and gives the focus to its field of that column, or to none in particular. False,
    /// where it was, when the window doesn't hold the row or can't leave the one it stands on.
    [[nodiscard]] virtual bool standOn(qint64 /*record*/, const QString& /*column*/) { return false; }
    /// It came up without all of its parts; the host makes it anew when it is asked for again.
    [[nodiscard]] bool loadFailed() const { return loadFailed_; }

protected:
    [[nodiscard]] Session& session() const { return session_; }
    [[nodiscard]] Workspace& workspace() const { return workspace_; }
    /// False, after telling why, in a session that may change nothing.
    [[nodiscard]] virtual bool mayChange();
    /// Runs a load that shows its failure itself and leaves the window as far as it has come.
    void attemptLoad(const std::function<void()>& load);
    /// The commands that are the same in every data window.
    [[nodiscard]] WindowCommands commonCommands();

private:
    Session& session_;
    Workspace& workspace_;
    bool loadFailed_ = false;
};

}  // namespace session
