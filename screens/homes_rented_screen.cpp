#include "screens/homes_rented_screen.h"

#include "platform/forms/text_control.h"
#include "screens/field_checks.h"

namespace screens {

namespace {
constexpr int rentBox = 7;
}

bool HomesRentedScreen::validates(int box) {
    if (box != rentBox || !boxes().text(box).text().isEmpty()) return OwnedScreen::validates(box);
    showInvalidNumber(desktop(), boxes().label(box));
    return false;
}

}  // namespace screens
