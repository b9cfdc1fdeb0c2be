#include "screens/ag_site_screen.h"

#include "platform/forms/text_control.h"

namespace screens {

void AgSiteScreen::beginEdit() {
    focusOn(boxes().text(1));
    OwnedScreen::beginEdit();
}

}  // namespace screens
