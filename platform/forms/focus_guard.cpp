#include "platform/forms/focus_guard.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include "platform/forms/control.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form.h"
#include "platform/forms/key_ascii.h"

namespace platform {

namespace {

/// The widget under a press in a window, at the position within it.
QWidget* widgetAt(const QWindow& window, const QPoint& position) {
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top->windowHandle() != &window) continue;
        QWidget* child = top->childAt(position);
        return child ? child : top;
    }
    return nullptr;
}

/// The widget that a press would give the focus to; nullptr if it leaves the focus where it is.
QWidget* focusTarget(QWidget* pressed) {
    for (QWidget* widget = pressed; widget; widget = widget->parentWidget()) {
        if (widget->isEnabled() && (widget->focusPolicy() & Qt::ClickFocus) == Qt::ClickFocus) return widget;
        if (widget->isWindow()) break;
    }
    return nullptr;
}

bool isTab(const QKeyEvent& event) {
    return (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) &&
           !event.modifiers().testFlag(Qt::ControlModifier);
}

Qt::Key keyOf(const QKeyEvent& event) {
    return static_cast<Qt::Key>(event.key());
}

/// Shift, Ctrl and Alt; that a key stands on the number pad is nothing to a form.
Qt::KeyboardModifiers heldWith(const QKeyEvent& event) {
    return event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
}

}  // namespace

FocusGuard::FocusGuard(Desktop& desktop) : desktop_(desktop) {
    qApp->installEventFilter(this);
}

bool FocusGuard::eventFilter(QObject* receiver, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease: {
            if (receiver != QApplication::focusWidget()) return false;
            Form* form = Form::of(static_cast<QWidget*>(receiver));
            if (!form || !form->isLoaded()) return false;
            auto& key = static_cast<QKeyEvent&>(*event);
            if (event->type() == QEvent::KeyPress) return keyPressed(*form, key);
            if (form->keyPreview()) desktop_.run([&] { form->Form_KeyUp(keyOf(key)); });
            return false;
        }
        case QEvent::FocusIn:
            if (!receiver->isWidgetType()) return false;
            if (Control* control = Control::of(static_cast<QWidget*>(receiver))) control->setCheckDue(true);
            return false;
        case QEvent::InputMethod:
            if (receiver == QApplication::focusWidget())
                textComposed(*static_cast<QWidget*>(receiver), static_cast<QInputMethodEvent&>(*event));
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return receiver->isWindowType() && mousePressed(receiver, static_cast<QMouseEvent&>(*event));
        case QEvent::MouseButtonRelease:
            if (!dropRelease_ || !receiver->isWindowType()) return false;
            dropRelease_ = false;
            return true;
        case QEvent::Shortcut:
            return accelerator(receiver);
        default:
            return false;
    }
}

bool FocusGuard::keyPressed(Form& form, QKeyEvent& event) {
    const QPointer<QWidget> window = &form.window();
    const auto gone = [&] { return !window || !form.isLoaded(); };
    // A Tab that moves the focus is no key of the form.
    if (isTab(event)) return !mayLeave(form, nullptr);
    if (form.keyPreview()) {
        desktop_.run([&] { form.Form_KeyDown(keyOf(event), heldWith(event)); });
        if (gone()) return true;
        if (const int character = keyAscii(event); character != 0) desktop_.run([&] { form.Form_KeyPress(character); });
        if (gone()) return true;
    }
    return false;
}

void FocusGuard::textComposed(QWidget& receiver, const QInputMethodEvent& event) {
    Form* form = Form::of(&receiver);
    const QPointer<QWidget> window = form ? &form->window() : nullptr;
    for (const QChar character : event.commitString()) {
        if (!window || !form->isLoaded() || !form->keyPreview()) return;
        desktop_.run([&] { form->Form_KeyPress(character.unicode()); });
    }
}

bool FocusGuard::mousePressed(QObject* receiver, QMouseEvent& event) {
    dropRelease_ = false;
    if (QApplication::activePopupWidget()) return false;
    const QWindow& window = static_cast<QWindow&>(*receiver);
    QWidget* target = focusTarget(widgetAt(window, event.position().toPoint()));
    if (!target) return false;
    Form* form = Form::of(target);
    const Control* control = Control::of(target);
    if (!form || !form->isLoaded() || !control || Form::of(QApplication::focusWidget()) != form) return false;
    if (mayLeave(*form, control)) return false;
    dropRelease_ = true;
    return true;
}

bool FocusGuard::accelerator(QObject* receiver) {
    auto* widget = qobject_cast<QWidget*>(receiver);
    if (!widget) return false;
    if (auto* label = qobject_cast<QLabel*>(widget); label && label->buddy()) widget = label->buddy();
    Form* form = Form::of(widget);
    const Control* control = Control::of(widget);
    if (!form || !form->isLoaded() || !control) return false;
    return !mayLeave(*form, control);
}

bool FocusGuard::mayLeave(Form& form, const Control* target) {
    Control* active = form.activeControl();
    if (!active || active == target || validating_ || Form::of(&active->widget()) != &form) return true;
    bool allowed = true;
    validating_ = true;
    desktop_.run([&] { allowed = active->allowsLeaving(); });
    validating_ = false;
    return allowed;
}

}  // namespace platform
