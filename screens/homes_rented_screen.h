#pragma once

#include "screens/owned_screen.h"

namespace screens {

/// Rented homes: the rent is a number and can't be left empty, whatever the message about it says.
class HomesRentedScreen : public OwnedScreen {
    Q_OBJECT

public:
    using OwnedScreen::OwnedScreen;

protected:
    [[nodiscard]] bool validates(int box) override;
};

}  // namespace screens
