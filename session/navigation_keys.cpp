#include "session/navigation_keys.h"

#include "session/record_buttons.h"

namespace session {

bool navigate(Qt::Key key, Qt::KeyboardModifiers held, const RecordButtons& buttons) {
    const RecordActions& actions = buttons.actions();
    const bool ctrl = held == Qt::ControlModifier;
    switch (key) {
        case Qt::Key_Escape:
            actions.close();
            break;
        case Qt::Key_End:
            actions.last();
            break;
        case Qt::Key_Home:
            actions.first();
            break;
        case Qt::Key_Up:
        case Qt::Key_PageUp:
            ctrl ? actions.first() : actions.previous();
            break;
        case Qt::Key_Down:
        case Qt::Key_PageDown:
            ctrl ? actions.last() : actions.next();
            break;
        default:
            return false;
    }
    return true;
}

}  // namespace session
