#include "screens/organizations_screen.h"

#include "platform/forms/combo_box.h"

namespace screens {

void OrganizationsScreen::showAfterAdd() {
    restoreOwnerName();
    owner().setText(savedName());
    forgetSavedName();
}

}  // namespace screens
