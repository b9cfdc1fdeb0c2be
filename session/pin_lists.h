#pragma once

#include <QString>
#include <optional>

namespace data {
class Connection;
}

namespace platform {
class Desktop;
}

namespace session {

/// Enciphers the secrets of a member's PIN list, or of every list, in the file, and tells the user when some of them
/// stay readable there.
void hidePins(platform::Desktop& desktop, data::Connection& connection, std::optional<qint16> member = {});
/// Does the same for every list when a run that died has left secrets plain.
void hidePinsLeftPlain(platform::Desktop& desktop, data::Connection& connection);

}  // namespace session
