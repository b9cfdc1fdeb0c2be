#pragma once

#include <QString>
#include <memory>

namespace platform {
class Desktop;
}

namespace session {
class DataWindow;
struct Session;
class Workspace;
}  // namespace session

namespace app {

/// Makes the data window of that name, not yet loaded; nullptr for a name that no window has.
[[nodiscard]] std::unique_ptr<session::DataWindow> makeWindow(const QString& name, platform::Desktop& desktop,
                                                              session::Session& session, session::Workspace& workspace);

}  // namespace app
