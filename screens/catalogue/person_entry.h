#pragma once

#include "screens/catalogue/screen_definition.h"

namespace screens {

/// The Person screen's entry.
[[nodiscard]] const ScreenDefinition& personEntry();

}  // namespace screens
