#include "screens/special_screens.h"

#include <QTimer>

#include "platform/forms/combo_box.h"
#include "platform/forms/text_control.h"
#include "screens/field_checks.h"
#include "session/workspace.h"

using namespace Qt::StringLiterals;

namespace screens {

void AlimonyScreen::goFirst() {
    workspace().enableTree(true);
    SharedTableScreen::goFirst();
}

void EducationScreen::Form_Activate() {
    // A window that comes up gives the focus to its first control; this goes behind it.
    QTimer::singleShot(0, this,
                       [this] { boxes().text(definition().firstField()).widget().setFocus(Qt::TabFocusReason); });
}

bool HomesRentedScreen::validates(int box) {
    if (box != boxes().indexOf("RentalAmount"_L1) || !boxes().text(box).text().isEmpty())
        return OwnedScreen::validates(box);
    showInvalidNumber(desktop(), boxes().label(box));
    return false;
}

void StocksScreen::cbFields_Click() {
    const FieldBoxes::Combo& state = boxes().combos().front();
    if (boxes().text(state.shadow).text() != state.box->text()) bChange = true;
    OwnedScreen::cbFields_Click();
}

}  // namespace screens
