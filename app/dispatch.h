#pragma once

#include <QString>

namespace app {

class MDIHost;
struct CategoryNode;

/// What a click on a node of the category tree leads to: the guards, the pictures, and the window or dialog of the
/// node.
class Dispatch {
public:
    explicit Dispatch(MDIHost& host) : host_(host) {}

    void nodeClick(int nodeIndex);
    /// Index of the node that opens a window: of two the one that was clicked last; 0 if no node does.
    [[nodiscard]] int nodeOf(const QString& window) const;

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

    MDIHost& host_;
};

}  // namespace app
