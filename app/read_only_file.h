#pragma once

namespace platform {
class Desktop;
}

namespace session {
struct Session;
}

namespace app {

/// Tells whose book is open that nothing he enters can be saved, where that is so.
void tellIfReadOnly(platform::Desktop& desktop, const session::Session& session);

}  // namespace app
