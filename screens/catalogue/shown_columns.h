#pragma once

#include <vector>

#include "data/table_definition.h"

namespace screens {

struct ScreenDefinition;

/// The fields of a screen in the order of their numbers, text boxes first, then check boxes: the columns of its table
/// that it shows, in the screen's own words where it has some. Throws std::out_of_range for an unknown table.
[[nodiscard]] std::vector<data::Column> shownColumns(const ScreenDefinition& definition);

}  // namespace screens
