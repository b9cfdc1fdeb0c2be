#include "platform/forms/command_button.h"

#include <QKeyEvent>
#include <QShortcutEvent>

namespace platform {

CommandButton::CommandButton(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] { press(); });
}

void CommandButton::press() {
    if (handler_) handler_();
}

void CommandButton::addKey(const QKeySequence& key) {
    key_ = key;
    grabShortcut(key);
}

bool CommandButton::answersTo(const QKeySequence& key) const {
    return !key.isEmpty() && (key == shortcut() || key == key_) && isVisible() && isEnabled();
}

bool CommandButton::event(QEvent* event) {
    if (event->type() == QEvent::Shortcut && isEnabled()) {
        const bool byKey = static_cast<QShortcutEvent*>(event)->key() == key_;
        if (!byKey) setFocus(Qt::ShortcutFocusReason);
        click();
        return true;
    }
    return QPushButton::event(event);
}

void CommandButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

}  // namespace platform
