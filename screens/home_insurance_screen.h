#pragma once

#include "screens/owned_screen.h"

namespace screens {

/// Home owner's insurance: its rows are read when the host asks for them, not while the window loads.
class HomeInsuranceScreen : public OwnedScreen {
    Q_OBJECT

public:
    using OwnedScreen::OwnedScreen;

    void Form_Load() override {}
    /// Reads the rows, the first time; a window that shows some keeps them.
    void ShowMe() override;
};

}  // namespace screens
