#include "platform/forms/child_accessible.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace platform {

namespace {

void tell(QWidget* widget, QAccessible::Event what) {
    QAccessibleEvent event(widget, what);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

ChildAccessible::ChildAccessible(QMdiSubWindow& frame)
    : QAccessibleWidget(&frame, QAccessible::Window), frame_(frame) {}

bool ChildAccessible::isBehind() const {
    return !frame_.mdiArea() || frame_.mdiArea()->currentSubWindow() != &frame_;
}

int ChildAccessible::childCount() const {
    return frame_.widget() && !isBehind() ? 1 : 0;
}

QAccessibleInterface* ChildAccessible::child(int index) const {
    return index >= 0 && index < childCount() ? QAccessible::queryAccessibleInterface(frame_.widget()) : nullptr;
}

int ChildAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return childCount() > 0 && child->object() == frame_.widget() ? 0 : -1;
}

QString ChildAccessible::text(QAccessible::Text what) const {
    return what == QAccessible::Name ? frame_.windowTitle() : QAccessibleWidget::text(what);
}

QAccessible::State ChildAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    if (isBehind()) state.invisible = true;
    return state;
}

void tellFront(QMdiSubWindow* behind, QMdiSubWindow* front) {
    if (!QAccessible::isActive()) return;
    if (behind) {
        tell(behind->widget(), QAccessible::ObjectDestroyed);
        tell(behind, QAccessible::ObjectHide);
    }
    if (front) {
        tell(front->widget(), QAccessible::ObjectCreated);
        tell(front, QAccessible::ObjectShow);
    }
}

}  // namespace platform
