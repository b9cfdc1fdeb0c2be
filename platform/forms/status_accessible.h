#pragma once

#include <QAccessibleWidget>

namespace platform {

class StatusLine;

/// A status line as a screen reader meets it: a status that reads its text, with a note in it that comes up at each
/// change.
class StatusAccessible : public QAccessibleWidget {
public:
    explicit StatusAccessible(StatusLine& line);
    ~StatusAccessible() override;

    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QString text(QAccessible::Text what) const override;

private:
    StatusLine& line_;
    mutable QAccessible::Id note_ = 0;
};

}  // namespace platform
