#pragma once

#include "screens/shared_table_screen.h"

namespace screens {

/// Alimony: going to the first record also gives the category tree back to the user.
class AlimonyScreen : public SharedTableScreen {
    Q_OBJECT

public:
    using SharedTableScreen::SharedTableScreen;

protected:
    void goFirst() override;
};

}  // namespace screens
