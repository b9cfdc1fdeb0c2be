#include "platform/forms/form.h"

#include <QWidget>
#include <algorithm>

#include "platform/forms/control.h"
#include "platform/forms/long_text.h"

using namespace Qt::StringLiterals;

namespace platform {

Form::Form(FormHolder& holder, QString name) : holder_(holder), name_(std::move(name)) {}

Form::~Form() = default;

void Form::setCaption(const QString& caption) {
    caption_ = caption;
    // "[*]" in a window title is the toolkit's own mark; doubled it stands for itself.
    constexpr qsizetype mostInTitle = 500;
    QString shown = caption.first(shownLength(caption, mostInTitle));
    window().setWindowTitle(shown.replace(u"[*]"_s, u"[*][*]"_s));
}

bool Form::agreesToClose() {
    bool cancel = false;
    Form_QueryUnload(cancel);
    return !cancel;
}

void Form::takeFocus() {
    window().setFocus(Qt::OtherFocusReason);
}

bool Form::unload() {
    if (!loaded_) return true;
    if (!agreesToClose()) return false;
    leave();
    return true;
}

void Form::leave() {
    if (!loaded_) return;
    Form_Unload();
    holder_.retire(*this);
}

void Form::destroyLater() {
    window().deleteLater();
}

Form* Form::of(QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (auto* form = dynamic_cast<Form*>(widget)) return form;
        // A box in front of a form is its child, but no part of it.
        if (widget->isWindow()) break;
    }
    return nullptr;
}

Control* Form::control(const QString& name) {
    const auto widgets = window().findChildren<QWidget*>(name);
    for (QWidget* widget : widgets) {
        if (Form::of(widget) == this) return dynamic_cast<Control*>(widget);
    }
    return nullptr;
}

Control* Form::activeControl() {
    return Control::of(window().focusWidget());
}

void Form::setCheckDue(Control& control) {
    const bool isDue = std::ranges::find(due_, &control.widget(), &QPointer<QWidget>::data) != due_.end();
    if (!isDue) due_.emplace_back(&control.widget());
}

bool Form::passesCheck(Control& control) {
    const bool passes = control.allowsLeaving();
    if (passes) std::erase(due_, &control.widget());
    return passes;
}

bool Form::passesChecks() {
    // A check may show a box, and the focus go elsewhere behind it.
    const auto due = due_;
    for (const QPointer<QWidget>& widget : due) {
        Control* control = Control::of(widget);
        if (!control || passesCheck(*control)) continue;
        widget->setFocus();
        return false;
    }
    return true;
}

void Form::forgetChecks() {
    Control* active = activeControl();
    std::erase_if(due_, [active](QWidget* widget) { return !active || widget != &active->widget(); });
}

std::function<void()> Form::handler(std::function<void()> routine) {
    return [this, routine = std::move(routine)] { holder_.run(routine); };
}

}  // namespace platform
