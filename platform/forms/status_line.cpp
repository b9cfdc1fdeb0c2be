#include "platform/forms/status_line.h"

#include <QAccessible>

namespace platform {

void StatusLine::setText(const QString& text) {
    if (text == this->text()) return;
    QLabel::setText(text);
    if (!QAccessible::isActive() || !isVisible()) return;
    // Readers pass over a changed name where the focus is not; a note that comes up they say.
    QAccessibleEvent shown(this, QAccessible::ObjectShow);
    shown.setChild(0);
    QAccessible::updateAccessibility(&shown);
}

}  // namespace platform
