#pragma once

#include <QAccessibleWidget>

namespace platform {

class ComboBox;

/// A combo as a screen reader meets it: called by its label, whatever stands in it; its entries and the line for typing
/// are within, and bear the same name.
class ComboAccessible : public QAccessibleWidget {
public:
    explicit ComboAccessible(ComboBox& combo);

    [[nodiscard]] int childCount() const override { return 2; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QString text(QAccessible::Text what) const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

private:
    ComboBox& combo_;
};

}  // namespace platform
