#include "screens/stocks_screen.h"

#include "platform/forms/combo_box.h"
#include "platform/forms/text_control.h"

namespace screens {

void StocksScreen::cbFields_Click() {
    const FieldBoxes::Combo& state = boxes().combos().front();
    if (boxes().text(state.column.shadow).text() != state.box->text()) bChange = true;
    OwnedScreen::cbFields_Click();
}

}  // namespace screens
