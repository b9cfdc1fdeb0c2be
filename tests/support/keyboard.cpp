#include "tests/support/keyboard.h"

#include <QGuiApplication>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <array>

#include "tests/support/refused.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

struct NamedKey {
    QLatin1StringView name;
    Qt::Key key;
    char16_t writes = 0;
};

constexpr std::array<NamedKey, 21> namedKeys{{
    {"Tab"_L1, Qt::Key_Tab, u'\t'},
    {"Return"_L1, Qt::Key_Return, u'\r'},
    {"Enter"_L1, Qt::Key_Enter, u'\r'},
    {"Escape"_L1, Qt::Key_Escape, u'\x1b'},
    {"Esc"_L1, Qt::Key_Escape, u'\x1b'},
    {"Backspace"_L1, Qt::Key_Backspace, u'\b'},
    {"Delete"_L1, Qt::Key_Delete, u'\x7f'},
    {"Space"_L1, Qt::Key_Space, u' '},
    {"Insert"_L1, Qt::Key_Insert},
    {"Home"_L1, Qt::Key_Home},
    {"End"_L1, Qt::Key_End},
    {"PageUp"_L1, Qt::Key_PageUp},
    {"PageDown"_L1, Qt::Key_PageDown},
    {"Up"_L1, Qt::Key_Up},
    {"Down"_L1, Qt::Key_Down},
    {"Left"_L1, Qt::Key_Left},
    {"Right"_L1, Qt::Key_Right},
    {"Plus"_L1, Qt::Key_Plus, u'+'},
    {"Shift"_L1, Qt::Key_Shift},
    {"Menu"_L1, Qt::Key_Menu},
    {"Alt"_L1, Qt::Key_Alt},
}};

struct NamedModifier {
    QLatin1StringView prefix;
    Qt::KeyboardModifier modifier;
};

constexpr std::array<NamedModifier, 3> namedModifiers{{
    {"Shift+"_L1, Qt::ShiftModifier},
    {"Ctrl+"_L1, Qt::ControlModifier},
    {"Alt+"_L1, Qt::AltModifier},
}};

constexpr qsizetype singleKeys = 300;
constexpr qsizetype keysAtOnce = 500;

Qt::KeyboardModifiers takeModifiers(QString& name) {
    Qt::KeyboardModifiers held;
    for (bool found = true; found;) {
        found = false;
        for (const NamedModifier& named : namedModifiers) {
            if (name.size() <= named.prefix.size() || !name.startsWith(named.prefix)) continue;
            held |= named.modifier;
            name.remove(0, named.prefix.size());
            found = true;
        }
    }
    return held;
}

std::optional<KeyStroke> named(const QString& name) {
    for (const NamedKey& key : namedKeys) {
        if (name == key.name) return KeyStroke{key.key, {}, key.writes ? QString(QChar(key.writes)) : QString()};
    }
    bool isNumber = false;
    const int number = name.startsWith(u'F') ? name.mid(1).toInt(&isNumber) : 0;
    if (isNumber && number >= 1 && number <= 12) return KeyStroke{Qt::Key(Qt::Key_F1 + number - 1), {}, {}};
    return std::nullopt;
}

/// A character of one or two code units.
KeyStroke characterKey(const QString& text) {
    if (text == u"\n"_s || text == u"\r"_s) return {Qt::Key_Return, {}, u"\r"_s};
    if (text == u"\t"_s) return {Qt::Key_Tab, {}, text};
    const char32_t code = text.toUcs4().constFirst();
    const bool upper = QChar::isUpper(code);
    return {Qt::Key(QChar::toUpper(code)), upper ? Qt::ShiftModifier : Qt::NoModifier, text};
}

bool isLineEnd(QChar character) {
    return character == u'\n' || character == u'\r' || character == u'\t';
}

qsizetype characterLength(const QString& text, qsizetype at) {
    const bool pair = text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    return pair ? 2 : 1;
}

/// Length of the run from here that one press can write.
qsizetype runLength(const QString& text, qsizetype at) {
    if (at < singleKeys || isLineEnd(text.at(at))) return characterLength(text, at);
    qsizetype length = 0;
    while (at + length < text.size() && length < keysAtOnce && !isLineEnd(text.at(at + length))) {
        length += characterLength(text, at + length);
    }
    return length;
}

KeyStroke runKey(const QString& run) {
    KeyStroke stroke = characterKey(run.left(characterLength(run, 0)));
    if (!isLineEnd(run.at(0))) stroke.text = run;
    return stroke;
}

QWindow* focusedWindow() {
    QWindow* window = QGuiApplication::focusWindow();
    if (!window) throw Refused(u"no window has the focus"_s);
    return window;
}

}  // namespace

KeyStroke keyNamed(const QString& name) {
    QString rest = name;
    const Qt::KeyboardModifiers held = takeModifiers(rest);
    std::optional<KeyStroke> stroke = named(rest);
    if (!stroke) {
        if (rest.isEmpty() || characterLength(rest, 0) != rest.size()) throw Refused(u"unknown key: "_s + name);
        stroke = characterKey(rest);
        // "Alt+S" names the key cap, as a menu does; "S" alone names the letter.
        if (held & (Qt::ControlModifier | Qt::AltModifier)) {
            stroke->held = Qt::NoModifier;
            stroke->text = rest.toLower();
        } else if (held & Qt::ShiftModifier) {
            stroke->text = rest.toUpper();
        }
    }
    stroke->held |= held;
    // A desktop tells of the Alt key as held while it goes down.
    if (stroke->key == Qt::Key_Alt) stroke->held |= Qt::AltModifier;
    if (stroke->held == Qt::ShiftModifier && stroke->key == Qt::Key_Tab) stroke->key = Qt::Key_Backtab;
    const bool letter = stroke->key >= Qt::Key_A && stroke->key <= Qt::Key_Z;
    if (letter && stroke->held.testFlag(Qt::ControlModifier)) stroke->text = QChar(stroke->key - Qt::Key_A + 1);
    return *stroke;
}

std::vector<KeyStroke> strokesOf(const QString& text) {
    QString lines = text;
    lines.replace(u"\r\n"_s, u"\n"_s);
    std::vector<KeyStroke> strokes;
    for (qsizetype at = 0; at < lines.size();) {
        const qsizetype length = runLength(lines, at);
        strokes.push_back(runKey(lines.mid(at, length)));
        at += length;
    }
    return strokes;
}

void press(const KeyStroke& stroke) {
    QTest::sendKeyEvent(QTest::Press, focusedWindow(), stroke.key, stroke.text, stroke.held);
}

void letGo(const KeyStroke& stroke) {
    // The press may have closed the last window.
    if (QWindow* window = QGuiApplication::focusWindow()) {
        QTest::sendKeyEvent(QTest::Release, window, stroke.key, stroke.text, stroke.held);
    }
}

}  // namespace support
