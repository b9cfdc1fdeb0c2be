#include "session/navigation_keys.h"

#include "platform/forms/key_codes.h"
#include "session/record_buttons.h"

namespace session {

void navigate(int keyCode, int shift, const RecordButtons& buttons) {
    namespace key = platform::key;
    const RecordActions& actions = buttons.actions();
    const bool ctrl = shift == platform::ctrlMask;
    switch (keyCode) {
        case key::escape:
            actions.close();
            break;
        case key::end:
            actions.last();
            break;
        case key::home:
            actions.first();
            break;
        case key::up:
        case key::pageUp:
            ctrl ? actions.first() : actions.previous();
            break;
        case key::down:
        case key::pageDown:
            ctrl ? actions.last() : actions.next();
            break;
        default:
            break;
    }
}

}  // namespace session
