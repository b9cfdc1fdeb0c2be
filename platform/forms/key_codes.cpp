#include "platform/forms/key_codes.h"

#include <QKeyEvent>
#include <array>

namespace platform {

namespace {

struct NamedKey {
    Qt::Key qt;
    int code;
};

constexpr std::array<NamedKey, 23> namedKeys{{
    {Qt::Key_Backspace, key::backspace},
    {Qt::Key_Tab, key::tab},
    {Qt::Key_Backtab, key::tab},
    {Qt::Key_Return, key::enter},
    {Qt::Key_Enter, key::enter},
    {Qt::Key_Escape, key::escape},
    {Qt::Key_Space, key::space},
    {Qt::Key_PageUp, key::pageUp},
    {Qt::Key_PageDown, key::pageDown},
    {Qt::Key_End, key::end},
    {Qt::Key_Home, key::home},
    {Qt::Key_Left, key::left},
    {Qt::Key_Up, key::up},
    {Qt::Key_Right, key::right},
    {Qt::Key_Down, key::down},
    {Qt::Key_Insert, key::insert},
    {Qt::Key_Delete, key::del},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Pause, 19},
    {Qt::Key_NumLock, 144},
}};

/// The characters of one key, plain and with Shift, as an American keyboard has them.
struct CharacterKey {
    char plain;
    char shifted;
    int code;
};

constexpr std::array<CharacterKey, 21> characterKeys{{
    {'1', '!', '1'},  {'2', '@', '2'}, {'3', '#', '3'},  {'4', '$', '4'}, {'5', '%', '5'}, {'6', '^', '6'},
    {'7', '&', '7'},  {'8', '*', '8'}, {'9', '(', '9'},  {'0', ')', '0'}, {';', ':', 186}, {'=', '+', 187},
    {',', '<', 188},  {'-', '_', 189}, {'.', '>', 190},  {'/', '?', 191}, {'`', '~', 192}, {'[', '{', 219},
    {'\\', '|', 220}, {']', '}', 221}, {'\'', '"', 222},
}};

/// Code of the key that a character stands on. A character's own code won't do: "(" has that of the Down key.
int characterKeyCode(int character) {
    for (const CharacterKey& key : characterKeys) {
        if (key.plain == character || key.shifted == character) return key.code;
    }
    return character >= Qt::Key_A && character <= Qt::Key_Z ? character : 0;
}

}  // namespace

int keyCode(const QKeyEvent& event) {
    for (const NamedKey& named : namedKeys) {
        if (named.qt == event.key()) return named.code;
    }
    if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F24) return 112 + event.key() - Qt::Key_F1;
    return characterKeyCode(event.key());
}

int shiftState(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    return (held.testFlag(Qt::ShiftModifier) ? 1 : 0) + (held.testFlag(Qt::ControlModifier) ? 2 : 0) +
           (held.testFlag(Qt::AltModifier) ? 4 : 0);
}

int keyAscii(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    const bool ctrl = held.testFlag(Qt::ControlModifier);
    const bool alt = held.testFlag(Qt::AltModifier);
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return ctrl ? 10 : key::enter;
        case Qt::Key_Escape:
            return key::escape;
        case Qt::Key_Backspace:
            return ctrl ? 127 : key::backspace;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Delete:
            return 0;
        default:
            break;
    }
    if (ctrl && !alt && event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) return event.key() - Qt::Key_A + 1;
    if (alt && !ctrl) return 0;
    const QString text = event.text();
    return text.isEmpty() || text.at(0).category() == QChar::Other_Control ? 0 : text.at(0).unicode();
}

}  // namespace platform
