#pragma once

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
    /// Reads the rows of a window that doesn't read them while it loads; the host calls it right before it shows one.
    virtual void ShowMe() {}

protected:
    [[nodiscard]] Session& session() const { return session_; }
    [[nodiscard]] Workspace& workspace() const { return workspace_; }
    /// False, after telling why, in a session that may change nothing.
    [[nodiscard]] virtual bool mayChange();
    /// The commands that are the same in every data window.
    [[nodiscard]] WindowCommands commonCommands();

private:
    Session& session_;
    Workspace& workspace_;
};

}  // namespace session
