#include "platform/forms/control.h"

#include <QWidget>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace platform {

int Control::widthFor(int textPixels) {
    return std::max(textPixels, widget().sizeHint().width());
}

QString Control::hint() {
    return widget().toolTip();
}

void Control::setName(const QString& name) {
    widget().setObjectName(name);
}

void Control::setSpokenName(const QString& name) {
    widget().setAccessibleName(name);
}

QString Control::name() {
    return widget().objectName();
}

Control* Control::of(QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (auto* control = dynamic_cast<Control*>(widget)) return control;
        if (widget->isWindow()) return nullptr;
    }
    return nullptr;
}

bool takesTab(const QWidget& widget) {
    return (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !widget.focusProxy() && widget.isEnabled();
}

QString indexedName(const QString& array, int index) {
    return u"%1(%2)"_s.arg(array).arg(index);
}

}  // namespace platform
