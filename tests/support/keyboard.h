#pragma once

#include <QString>
#include <vector>

namespace support {

/// One press of a key, with what it writes.
struct KeyStroke {
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers held = Qt::NoModifier;
    QString text;
};

/// A key by name: "Tab", "Shift+Tab", "Ctrl+Down", "Alt+S", "a". Throws Refused for an unknown one.
[[nodiscard]] KeyStroke keyNamed(const QString& name);

/// The presses that write a text. A line end is Return. Long texts arrive as the toolkit hands over fast typing:
/// several characters in one press, so that a text of 100,000 characters takes seconds.
[[nodiscard]] std::vector<KeyStroke> strokesOf(const QString& text);

/// Presses and lets go of a key in the window that has the focus; throws Refused if none has it.
void press(const KeyStroke& stroke);
void letGo(const KeyStroke& stroke);

}  // namespace support
