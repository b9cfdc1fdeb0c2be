#pragma once

#include <QString>

namespace platform {
class Desktop;
class TreeView;
}  // namespace platform

namespace session {
struct Session;
}

namespace app {

class CategoryTree;
class FamilySelector;
class OpenWindows;
struct CategoryNode;

/// What a click on a node of the category tree leads to: the guards, the pictures, and the window or dialog of the
/// node.
class Dispatch {
public:
    Dispatch(platform::TreeView& tree, platform::Desktop& desktop, session::Session& session, CategoryTree& categories,
             FamilySelector& selector, OpenWindows& windows);

    void nodeClick(int nodeIndex);
    /// False, after telling why, while no node may be clicked: the window in front holds changes, or too many are open.
    [[nodiscard]] bool admitsClick();
    /// Index of the node that opens a window: of two the one that was clicked last; 0 if no node does.
    [[nodiscard]] int nodeOf(const QString& window) const;
    /// Selects the node of the window in front in the tree, or none.
    void showFrontNode();
    /// A branch was opened or closed.
    void nodeToggled();
    /// The panel behind the tree was clicked: tells why the tree is closed to the user, if it is.
    void picture1_Click();

private:
    /// False for a refusal that ends the click there, with the node's picture as it is.
    [[nodiscard]] bool follow(const CategoryNode& node);
    [[nodiscard]] bool openWindow(const CategoryNode& node);
    /// Tells that the list of accounts belongs to one member, unless one is selected.
    [[nodiscard]] bool requireMember(bool isSelected) const;
    [[nodiscard]] bool openPins();
    /// False without a member, and when the list of accounts, which that password opens, is open.
    [[nodiscard]] bool changePinPassword();
    /// The dialog, loaded if it isn't yet.
    template <class Dialog>
    [[nodiscard]] Dialog& touchDialog();
    template <class Dialog>
    [[nodiscard]] bool showDialog();
    /// A dialog that only tells something.
    template <class Page>
    [[nodiscard]] bool showPage();
    [[nodiscard]] bool tooManyWindows() const;

    platform::TreeView& tree_;
    platform::Desktop& desktop_;
    session::Session& session_;
    CategoryTree& categories_;
    FamilySelector& selector_;
    OpenWindows& windows_;
    /// Index of the tree node clicked last.
    int iCurrentNode_ = 1;
};

}  // namespace app
