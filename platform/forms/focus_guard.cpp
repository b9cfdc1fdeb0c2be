#include "platform/forms/focus_guard.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QShortcutEvent>
#include <QWidget>
#include <QWindow>
#include <algorithm>

#include "platform/forms/command_button.h"
#include "platform/forms/control.h"
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

void focusCame(QWidget* widget) {
    Control* control = Control::of(widget);
    Form* form = Form::of(widget);
    if (control && form) form->setCheckDue(*control);
}

/// Shift, Ctrl and Alt; that a key stands on the number pad is nothing to a form.
Qt::KeyboardModifiers heldWith(const QKeyEvent& event) {
    return event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
}

/// A blank on a button isn't typed.
bool pressesButton(const QKeyEvent& event) {
    return event.key() == Qt::Key_Space && qobject_cast<CommandButton*>(QApplication::focusWidget());
}

/// A command, and where nothing answers to it no text either, which the box would make of it.
bool isLetterWithAlt(const QKeyEvent& event) {
    const bool alt = event.modifiers().testFlag(Qt::AltModifier) && !event.modifiers().testFlag(Qt::ControlModifier);
    return alt && !event.text().isEmpty() && event.text().front().isPrint();
}

/// Clicks the button of the host's child in front that the key belongs to; false if none shows.
bool pressButton(const QWidget& host, const QKeySequence& key) {
    const auto* area = host.findChild<QMdiArea*>();
    const QMdiSubWindow* front = area ? area->currentSubWindow() : nullptr;
    if (!front) return false;
    const auto buttons = front->findChildren<CommandButton*>();
    const auto pressed =
        std::ranges::find_if(buttons, [&](const CommandButton* button) { return button->answersTo(key); });
    if (pressed == buttons.end()) return false;
    QShortcutEvent shortcut(key, 0);
    QApplication::sendEvent(*pressed, &shortcut);
    return true;
}

}  // namespace

FocusGuard::FocusGuard(FormHolder& forms) : forms_(forms) {
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
            if (form->keyPreview()) forms_.run([&] { form->Form_KeyUp(keyOf(key)); });
            return false;
        }
        case QEvent::FocusIn:
            if (!receiver->isWidgetType()) return false;
            focusCame(static_cast<QWidget*>(receiver));
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
            return accelerator(receiver, static_cast<QShortcutEvent&>(*event));
        default:
            return false;
    }
}

bool FocusGuard::keyPressed(Form& form, QKeyEvent& event) {
    const QPointer<QWidget> window = &form.window();
    const auto gone = [&] { return !window || !form.isLoaded(); };
    // A Tab that moves the focus is no key of the form.
    if (isTab(event)) return !mayLeave(form, nullptr);
    // Keys of the child in front reach it by themselves only while it has the focus.
    const auto* host = qobject_cast<QMainWindow*>(&form.window());
    if (host && pressButton(*host, QKeySequence(event.keyCombination()))) return true;
    if (isLetterWithAlt(event)) return true;
    if (form.keyPreview()) {
        bool usedUp = false;
        forms_.run([&] { usedUp = form.Form_KeyDown(keyOf(event), heldWith(event)); });
        if (usedUp || gone()) return true;
        const int character = pressesButton(event) ? 0 : keyAscii(event);
        if (character != 0) forms_.run([&] { form.Form_KeyPress(character); });
        if (gone()) return true;
    }
    return false;
}

void FocusGuard::textComposed(QWidget& receiver, const QInputMethodEvent& event) {
    Form* form = Form::of(&receiver);
    const QPointer<QWidget> window = form ? &form->window() : nullptr;
    for (const QChar character : event.commitString()) {
        if (!window || !form->isLoaded() || !form->keyPreview()) return;
        forms_.run([&] { form->Form_KeyPress(character.unicode()); });
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

bool FocusGuard::accelerator(QObject* receiver, const QShortcutEvent& event) {
    // A letter that a menu and a button have is the button's: F10 and Alt lead to the menu, only its letter to the
    // button.
    if (const auto* bar = qobject_cast<QMenuBar*>(receiver)) return pressButton(*bar->window(), event.key());
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
    forms_.run([&] { allowed = form.passesCheck(*active); });
    validating_ = false;
    return allowed;
}

}  // namespace platform
