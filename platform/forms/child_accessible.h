#pragma once

#include <QAccessibleWidget>

class QMdiSubWindow;

namespace platform {

/// A child window of the host as a screen reader meets it. Behind another one it isn't showing, and nothing of it can
/// be come upon, though the toolkit doesn't hide what is merely covered.
class ChildAccessible : public QAccessibleWidget {
public:
    explicit ChildAccessible(QMdiSubWindow& frame);

    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QString text(QAccessible::Text what) const override;
    [[nodiscard]] QAccessible::State state() const override;

private:
    [[nodiscard]] bool isBehind() const;

    QMdiSubWindow& frame_;
};

/// Tells screen readers that one child of the host went behind another, either of which may be nullptr.
void tellFront(QMdiSubWindow* behind, QMdiSubWindow* front);

}  // namespace platform
