#include "platform/forms/key_ascii.h"

#include <QKeyEvent>

namespace platform {

int keyAscii(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    const bool ctrl = held.testFlag(Qt::ControlModifier);
    const bool alt = held.testFlag(Qt::AltModifier);
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return ctrl ? '\n' : '\r';
        case Qt::Key_Escape:
            return 27;
        case Qt::Key_Backspace:
            return ctrl ? 127 : '\b';
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
