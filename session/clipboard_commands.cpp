#include "session/clipboard_commands.h"

#include <QLineEdit>

#include "platform/base/runtime_error.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form.h"
#include "platform/forms/text_control.h"

namespace session {

namespace {

QString selText(platform::Control& control) {
    if (auto* box = dynamic_cast<platform::TextControl*>(&control)) return box->selText();
    if (auto* combo = dynamic_cast<platform::ComboBox*>(&control)) return combo->lineEdit()->selectedText();
    throw platform::RuntimeError(platform::Error::NotSupported);
}

void setSelText(platform::Control& control, const QString& text) {
    if (auto* box = dynamic_cast<platform::TextControl*>(&control)) {
        box->setSelText(text);
    } else if (auto* combo = dynamic_cast<platform::ComboBox*>(&control)) {
        combo->lineEdit()->insert(text);
    } else {
        throw platform::RuntimeError(platform::Error::NotSupported);
    }
}

platform::Control& active(platform::Form& form) {
    platform::Control* control = form.activeControl();
    if (!control) throw platform::RuntimeError(platform::Error::ObjectNotSet);
    return *control;
}

}  // namespace

void copySelection(platform::Form& form, Copy copy) {
    platform::Control& control = active(form);
    form.desktop().setClipboardText(selText(control));
    if (copy == Copy::Cut) setSelText(control, {});
}

void pasteSelection(platform::Form& form) {
    setSelText(active(form), form.desktop().clipboardText());
}

}  // namespace session
