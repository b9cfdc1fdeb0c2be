#pragma once

#include <QLatin1StringView>
#include <span>

namespace app {

/// A node of the category tree. Its table is the one whose rows decide its picture, and empty for a node without one.
///
/// Several nodes share a table, so their pictures move together; "Rentals" goes by the rented homes' table and not by
/// the one that its window shows, so that it follows the node "Rent".
struct CategoryNode {
    QLatin1StringView key;
    QLatin1StringView text;
    QLatin1StringView parent;
    QLatin1StringView table;
};

/// The tree, root first, in the order in which the nodes are made and shown.
[[nodiscard]] std::span<const CategoryNode> categoryNodes();

}  // namespace app
