#include "platform/forms/command_button.h"

#include <QEvent>

namespace platform {

CommandButton::CommandButton(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] { press(); });
}

void CommandButton::press() {
    if (handler_) handler_();
}

bool CommandButton::event(QEvent* event) {
    if (event->type() == QEvent::Shortcut && isEnabled()) {
        setFocus(Qt::ShortcutFocusReason);
        click();
        return true;
    }
    return QPushButton::event(event);
}

}  // namespace platform
