#include "screens/home_insurance_screen.h"

namespace screens {

void HomeInsuranceScreen::ShowMe() {
    if (!rows().isOpen()) loadRows();
}

}  // namespace screens
