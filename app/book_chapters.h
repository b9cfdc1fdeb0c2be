#pragma once

#include <vector>

#include "book/chapter.h"

namespace app {

/// The chapters of the family's book: the categories in the order of the tree, each window once; then the lists, and
/// the attached files.
[[nodiscard]] std::vector<book::Chapter> bookChapters();

}  // namespace app
