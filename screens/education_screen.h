#pragma once

#include "screens/owned_screen.h"

namespace screens {

/// Education: whenever the window comes to the front the focus goes to the box behind the owner.
class EducationScreen : public OwnedScreen {
    Q_OBJECT

public:
    using OwnedScreen::OwnedScreen;

    void Form_Activate() override;
};

}  // namespace screens
