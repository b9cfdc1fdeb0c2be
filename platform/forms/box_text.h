#pragma once

#include <QString>

namespace platform {

// What a box makes of a text, whether it is shown or not.

/// The front of a text that has room in a box of so many characters, 0 for any number; a character of two units stays
/// whole or goes.
[[nodiscard]] QString cutToBox(const QString& text, int maxLength);
/// A text as a box of many lines gives it back: every line end as CR LF, every blank as the usual one.
[[nodiscard]] QString asInMemo(QString text);

}  // namespace platform
