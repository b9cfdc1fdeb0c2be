#pragma once

#include <QString>

namespace platform {
class Desktop;
class TextControl;
}  // namespace platform

namespace screens {

enum class Check;

/// Tells that a box holds no date, naming it by its label without the colon.
void showInvalidDate(platform::Desktop& desktop, const QString& label);
/// Tells that a box holds no number.
void showInvalidNumber(platform::Desktop& desktop, const QString& label);

/// True if the box is empty or passes the check; otherwise tells the user, selects the whole entry for retyping, and
/// gives false so that the focus stays.
[[nodiscard]] bool passes(platform::Desktop& desktop, platform::TextControl& box, Check check, const QString& label);

}  // namespace screens
