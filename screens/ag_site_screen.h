#pragma once

#include "screens/owned_screen.h"

namespace screens {

/// Farm land: an edit begins in its first box, ready to be typed over.
class AgSiteScreen : public OwnedScreen {
    Q_OBJECT

public:
    using OwnedScreen::OwnedScreen;

protected:
    void beginEdit() override;
};

}  // namespace screens
