#pragma once

#include <QObject>

class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QShortcutEvent;

namespace platform {

class Control;
class Form;
class FormHolder;

/// Watches all input of the program for two rules of its forms: a form sees keys before its controls, and a control is
/// checked before it loses the focus to another control of the same form.
///
/// The mouse on a control that takes the focus, Tab and an accelerator lead away from a control; menus, toolbars, other
/// forms and the host's panel don't, and leave the check due (Form::passesChecks). When the check holds the focus, what
/// caused the move is dropped.
class FocusGuard : public QObject {
    Q_OBJECT

public:
    explicit FocusGuard(FormHolder& forms);

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool keyPressed(Form& form, QKeyEvent& event);
    /// Dead keys and input methods bring a text without its keys: each character counts as typed.
    void textComposed(QWidget& receiver, const QInputMethodEvent& event);
    bool mousePressed(QObject* receiver, QMouseEvent& event);
    bool accelerator(QObject* receiver, const QShortcutEvent& event);
    /// True if the focus may go from the form's active control to the given one.
    bool mayLeave(Form& form, const Control* target);

    FormHolder& forms_;
    bool dropRelease_ = false;
    bool validating_ = false;
};

}  // namespace platform
