#pragma once

#include "screens/owned_screen.h"

namespace screens {

/// Organizations: after an add the owner combo shows the kept name even when the row's owner can't be looked up.
class OrganizationsScreen : public OwnedScreen {
    Q_OBJECT

public:
    using OwnedScreen::OwnedScreen;

protected:
    void showAfterAdd() override;
};

}  // namespace screens
