#include "screens/alimony_screen.h"

#include "session/workspace.h"

namespace screens {

void AlimonyScreen::goFirst() {
    workspace().enableTree(true);
    SharedTableScreen::goFirst();
}

}  // namespace screens
