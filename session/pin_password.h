#pragma once

#include <QString>

namespace session {

/// Account of the row that holds the password of a member's PIN list.
[[nodiscard]] inline QString protectedAccount() {
    return QStringLiteral("PINs And Passwords Screen");
}

/// Marks a row of PIN_Password whose secret is plain at this moment. Enciphered, or anything else, it marks one whose
/// secret is enciphered.
[[nodiscard]] inline QString plainMark() {
    return QStringLiteral("PT");
}

}  // namespace session
