#include "platform/forms/dialog_buttons.h"

#include <QHBoxLayout>

#include "platform/forms/command_button.h"
#include "platform/forms/form_window.h"

using namespace Qt::StringLiterals;

namespace platform {

QHBoxLayout* dialogButtons(FormWindow& dialog, const std::function<void()>& ok, const std::function<void()>& cancel) {
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    const auto add = [&](const QString& name, const QString& caption, const std::function<void()>& routine) {
        auto* button = new CommandButton(&dialog);
        button->setName(name);
        button->setText(caption);
        button->onClick(routine);
        row->addWidget(button);
        return button;
    };
    dialog.setDefaultButton(add(u"cmdOK"_s, u"&OK"_s, ok));
    dialog.setCancelButton(add(u"cmdCancel"_s, u"&Cancel"_s, cancel));
    return row;
}

}  // namespace platform
