#pragma once

#include "screens/owned_screen.h"
#include "screens/shared_table_screen.h"

namespace screens {

// The owned screens that do one thing otherwise than all the others, by the alphabet.

/// Alimony: going to the first record also gives the category tree back to the user while another window's add has it.
class AlimonyScreen : public SharedTableScreen {
public:
    using SharedTableScreen::SharedTableScreen;

protected:
    void goFirst() override;
};

/// Education: whenever the window comes to the front the focus goes to the box behind the owner.
class EducationScreen : public OwnedScreen {
public:
    using OwnedScreen::OwnedScreen;

    void Form_Activate() override;
};

/// Rented homes: the rent is a number and can't be left empty, whatever the message about it says.
class HomesRentedScreen : public OwnedScreen {
public:
    using OwnedScreen::OwnedScreen;

protected:
    [[nodiscard]] bool validates(int box) override;
};

/// Stocks: a pick in the state combo counts as a change of the record, which it does on no other screen.
class StocksScreen : public OwnedScreen {
public:
    using OwnedScreen::OwnedScreen;

protected:
    void cbFields_Click() override;
};

}  // namespace screens
