#pragma once

#include <QString>

namespace data {
enum class FieldKind;
}

namespace platform {
class Desktop;
class TextControl;
}  // namespace platform

namespace screens {

/// Tells that a box holds no date, naming it by its label without the colon.
void showInvalidDate(platform::Desktop& desktop, const QString& label);
/// Tells that a box holds no number.
void showInvalidNumber(platform::Desktop& desktop, const QString& label);

/// True if the box is empty or holds what its kind, a date or a number, asks for; otherwise tells the user, selects the
/// whole entry for retyping, and gives false so that the focus stays.
[[nodiscard]] bool passes(platform::Desktop& desktop, platform::TextControl& box, data::FieldKind kind,
                          const QString& label);

}  // namespace screens
