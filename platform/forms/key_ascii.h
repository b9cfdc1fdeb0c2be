#pragma once

class QKeyEvent;

namespace platform {

/// Character code of a key that makes a character, Enter, Esc, Backspace and Ctrl with a letter among them; 0 for
/// the keys that make none (Delete, arrows, function keys, Alt with a letter, Tab).
[[nodiscard]] int keyAscii(const QKeyEvent& event);

}  // namespace platform
