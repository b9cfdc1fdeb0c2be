#pragma once

#include <QString>

namespace platform {
class Desktop;
}

namespace session {
struct Session;
}

// The backup that is to be restored: at the start, where the database is missing, and later from the menu.

namespace app {

/// Asks for the file and makes it the session's database at once. Empty when none was chosen.
[[nodiscard]] QString chooseRestoreSource(platform::Desktop& desktop, session::Session& session);
void tellNoRestoreSource(platform::Desktop& desktop);
/// False, after telling so, when the file isn't there.
[[nodiscard]] bool restoreSourceExists(platform::Desktop& desktop, const QString& path);

}  // namespace app
