#pragma once

#include <QLatin1StringView>
#include <span>

namespace app {

/// What a node's picture goes by, where that isn't the selected member's rows of the table that the node counts.
struct Picture {
    QLatin1StringView table{};                                       ///< whose rows decide it
    QLatin1StringView memberColumn = QLatin1StringView("PersonID");  ///< whose a row is; empty for a row of everybody
    bool followsSelection = false;
};

/// A node of the category tree: a branch, or a category with the window that a click on it opens.
///
/// Several nodes share a table, so their pictures move together; "Rentals" goes by the rented homes' table and not by
/// the one that its window shows, so that it follows the node "Rent".
struct CategoryNode {
    QLatin1StringView key;
    QLatin1StringView text;
    QLatin1StringView parent;
    /// Name of the window or dialog; empty for a branch.
    QLatin1StringView opens{};
    /// What stands behind the count's "from": the rows, whoever's they are, without which a session that may change
    /// nothing doesn't open the window.
    QLatin1StringView counts{};
    Picture picture{};

    /// The table whose rows decide the picture; empty for a branch that goes by its children, and for a node without
    /// rows.
    [[nodiscard]] QLatin1StringView table() const;
};

/// The tree in the order in which the nodes are made and shown: a node anywhere behind its parent, the root first.
[[nodiscard]] std::span<const CategoryNode> categoryNodes();

}  // namespace app
