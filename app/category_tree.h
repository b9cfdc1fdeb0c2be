#pragma once

#include <QString>

namespace platform {
class TreeView;
}

namespace session {
struct Session;
}

namespace app {

struct CategoryNode;
class HostRows;

/// The tree's nodes and the rule of their pictures: 1 for a category without data, 2 for one with data, for a branch
/// with such a child, and for the node clicked last.
class CategoryTree {
public:
    CategoryTree(platform::TreeView& view, session::Session& session, HostRows& rows);

    void build();
    /// The row of the node with that index.
    [[nodiscard]] static const CategoryNode& node(int nodeIndex);
    /// Gives one node its picture and carries the news up the tree. A failure ends the run.
    void setImage(int nodeIndex);
    /// The same for every node, in index order.
    void setAllImages();

private:
    void countNode(int nodeIndex);
    /// What stands behind the count's "from".
    [[nodiscard]] QString counted(const CategoryNode& node) const;
    /// The parent has data if one of the node's siblings has.
    void setParent(int nodeIndex);

    platform::TreeView& view_;
    session::Session& session_;
    HostRows& rows_;
};

}  // namespace app
