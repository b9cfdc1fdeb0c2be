#pragma once

#include <QString>

namespace data {
class Connection;
}

namespace platform {
class ComboBox;
class Desktop;
}  // namespace platform

namespace session {

/// Fills a combo with every member's name in the family's order, and stands on the first. A disabled one is only
/// emptied. A failure is shown.
void fillWithNames(platform::Desktop& desktop, data::Connection& connection, platform::ComboBox& combo);

/// True if the text is a member's name, in the very spelling; tells the user how to go on when it isn't.
[[nodiscard]] bool validOwnerName(platform::Desktop& desktop, data::Connection& connection, const QString& name);

}  // namespace session
