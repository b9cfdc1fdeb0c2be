#pragma once

#include <QLatin1StringView>
#include <QString>

namespace app {

/// Whether read-only mode is applied to a window when it is opened from the tree.
enum class Access { Apply, Leave };

/// What a click on a category's node opens.
struct DispatchRow {
    QLatin1StringView key;
    QLatin1StringView window;
    /// What stands behind the count's "from": all rows of the category, whoever is selected.
    QLatin1StringView counted;
    Access access;
};

/// The row of a node's key; nullptr for a branch and for the nodes of the Security category.
[[nodiscard]] const DispatchRow* dispatchRow(const QString& key);

}  // namespace app
