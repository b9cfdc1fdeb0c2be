#pragma once

#include "platform/forms/control.h"
#include "screens/field_boxes.h"
#include "screens/field_cells.h"

namespace screens {

/// How wide a box of a record screen is, by its own font: as wide as what its column holds.
[[nodiscard]] BoxRoom boxRoom(const FieldBoxes::Text& text, platform::Control& box);

}  // namespace screens
