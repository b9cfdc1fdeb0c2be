#pragma once

#include "screens/owned_screen.h"

namespace screens {

/// Stocks: a pick in the state combo counts as a change of the record, which it does on no other screen.
class StocksScreen : public OwnedScreen {
    Q_OBJECT

public:
    using OwnedScreen::OwnedScreen;

protected:
    void cbFields_Click() override;
};

}  // namespace screens
