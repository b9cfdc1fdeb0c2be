#pragma once

class QKeyEvent;

namespace platform {

/// Codes that the key events of a form are given.
namespace key {
constexpr int backspace = 8;
constexpr int tab = 9;
constexpr int enter = 13;
constexpr int escape = 27;
constexpr int space = 32;
constexpr int pageUp = 33;
constexpr int pageDown = 34;
constexpr int end = 35;
constexpr int home = 36;
constexpr int left = 37;
constexpr int up = 38;
constexpr int right = 39;
constexpr int down = 40;
constexpr int insert = 45;
constexpr int del = 46;
}  // namespace key

constexpr int ctrlMask = 2;

/// Key code of a press or release; 0 for a key that has none here.
[[nodiscard]] int keyCode(const QKeyEvent& event);

/// Shift state: 1 Shift, 2 Ctrl, 4 Alt, summed.
[[nodiscard]] int shiftState(const QKeyEvent& event);

/// Character code of a key that makes a character, Enter, Esc, Backspace and Ctrl with a letter among them; 0 for
/// the keys that make none (Delete, arrows, function keys, Alt with a letter, Tab).
[[nodiscard]] int keyAscii(const QKeyEvent& event);

}  // namespace platform
