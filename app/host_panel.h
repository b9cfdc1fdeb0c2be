#pragma once

#include <QWidget>
#include <functional>

class QGroupBox;
class QLabel;

namespace platform {
class ComboBox;
class CommandButton;
class TreeView;
}  // namespace platform

namespace app {

/// The host's left panel: the family selector, the button that adds a member, the category tree, and the guidance that
/// stands in the tree's place until the first member is entered.
class HostPanel : public QWidget {
    Q_OBJECT

public:
    explicit HostPanel(QWidget* parent);

    /// As wide as the widest node of the tree.
    [[nodiscard]] QSize sizeHint() const override;

    /// Caption of the add button in its usual look; the host tells the first run by it.
    [[nodiscard]] static QString usualAddCaption();

    void showFirstRun();
    void endFirstRun();
    void enableTree(bool enabled);
    void enableAddMember(bool enabled);
    /// A click came through to the panel itself, which it does only where a disabled control lets it.
    void onClick(std::function<void()> handler) { clicked_ = std::move(handler); }

    [[nodiscard]] platform::ComboBox& cbPerson() const { return *cbPerson_; }
    [[nodiscard]] platform::CommandButton& cmdAddNew() const { return *cmdAddNew_; }
    [[nodiscard]] platform::TreeView& tvTree() const { return *tvTree_; }
    [[nodiscard]] QGroupBox& frame1() const { return *frame1_; }

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    QWidget* makeGuidance();

    QGroupBox* frame1_;
    platform::ComboBox* cbPerson_;
    platform::CommandButton* cmdAddNew_;
    platform::TreeView* tvTree_;
    QLabel* label1_ = nullptr;  // made along with the guidance
    QWidget* guidance_;
    std::function<void()> clicked_;
};

}  // namespace app
