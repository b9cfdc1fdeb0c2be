#include "platform/forms/combo_accessible.h"

#include <QAbstractItemView>
#include <QLineEdit>

#include "platform/forms/combo_box.h"

namespace platform {

ComboAccessible::ComboAccessible(ComboBox& combo) : QAccessibleWidget(&combo, QAccessible::ComboBox), combo_(combo) {}

QAccessibleInterface* ComboAccessible::child(int index) const {
    QWidget* part = nullptr;
    if (index == 0) part = combo_.view();
    if (index == 1) part = combo_.lineEdit();
    if (!part) return nullptr;
    // The toolkit makes the list anew at times, and each time without a name.
    const QString label = text(QAccessible::Name);
    if (part->accessibleName() != label) part->setAccessibleName(label);
    return QAccessible::queryAccessibleInterface(part);
}

int ComboAccessible::indexOfChild(const QAccessibleInterface* child) const {
    if (child->object() == combo_.lineEdit()) return 1;
    return child->object() == combo_.view() ? 0 : -1;
}

QString ComboAccessible::text(QAccessible::Text what) const {
    return what == QAccessible::Value ? combo_.text() : QAccessibleWidget::text(what);
}

QAccessible::State ComboAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = combo_.view()->isVisible();
    state.editable = !combo_.isLocked();
    state.hasPopup = true;
    return state;
}

QStringList ComboAccessible::actionNames() const {
    return QStringList{showMenuAction()} + QAccessibleWidget::actionNames();
}

void ComboAccessible::doAction(const QString& actionName) {
    if (actionName != showMenuAction()) {
        QAccessibleWidget::doAction(actionName);
    } else if (combo_.view()->isVisible()) {
        combo_.hidePopup();
    } else {
        combo_.showPopup();
    }
}

}  // namespace platform
