#pragma once

#include "platform/forms/form_window.h"

namespace app {

/// Tips on the category list, the keyboard and the order of the family.
class CategoryListHelp : public platform::FormWindow {
    Q_OBJECT

public:
    explicit CategoryListHelp(platform::Desktop& desktop);
};

/// How passwords are set up, and how they are left out.
class SecurityInfo : public platform::FormWindow {
    Q_OBJECT

public:
    explicit SecurityInfo(platform::Desktop& desktop);
};

}  // namespace app
