#pragma once

#include <span>

#include "session/shown_rows.h"

namespace app {

/// All that the windows show of the family's file, category by category in the order of the tree, each window once; a
/// site's children stand behind it, the cover page at the end. The lists of passwords are left out: what stands in them
/// is nobody's to find.
[[nodiscard]] std::span<const session::ShownRows> shownRows();

}  // namespace app
