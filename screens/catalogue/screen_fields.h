#pragma once

#include <QLatin1StringView>
#include <vector>

#include "data/table_definition.h"

namespace screens {

struct ScreenDefinition;

/// The fields of a screen in the order of their numbers, text boxes first, then check boxes: the columns of its table
/// that it shows, in the screen's own words where it has some. Throws std::out_of_range for an unknown table.
[[nodiscard]] std::vector<data::Column> screenFields(const ScreenDefinition& definition);

/// Some neighbours in a control array, by index, both ends included; empty when `last` is before `first`.
struct Range {
    int first = 0;
    int last = -1;
    [[nodiscard]] constexpr bool holds(int index) const { return index >= first && index <= last; }
    [[nodiscard]] constexpr int count() const { return last < first ? 0 : last - first + 1; }
};

/// A frame of a screen with the numbers of what stands in it.
struct FilledFrame {
    int index;  ///< in frFrame
    QLatin1StringView caption;
    Range boxes;   ///< in txtFields; 0 is the owner
    Range checks;  ///< in chkFields
};

/// The frames of a screen in the order in which they are shown.
[[nodiscard]] std::vector<FilledFrame> filledFrames(const ScreenDefinition& definition);

}  // namespace screens
