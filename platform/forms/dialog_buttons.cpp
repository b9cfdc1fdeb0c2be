#include "platform/forms/dialog_buttons.h"

#include <QHBoxLayout>

#include "platform/forms/command_button.h"
#include "platform/forms/form_window.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

CommandButton* addButton(QHBoxLayout& row, FormWindow& dialog, const QString& name, const QString& caption,
                         const std::function<void()>& routine) {
    auto* button = new CommandButton(&dialog);
    button->setName(name);
    button->setText(caption);
    button->onClick(routine);
    row.addWidget(button);
    return button;
}

CommandButton* addOk(QHBoxLayout& row, FormWindow& dialog, const std::function<void()>& routine) {
    row.addStretch(1);
    CommandButton* button = addButton(row, dialog, u"cmdOK"_s, u"&OK"_s, routine);
    dialog.setDefaultButton(button);
    return button;
}

}  // namespace

QHBoxLayout* dialogButtons(FormWindow& dialog, const std::function<void()>& ok, const std::function<void()>& cancel) {
    auto* row = new QHBoxLayout;
    addOk(*row, dialog, ok);
    dialog.setCancelButton(addButton(*row, dialog, u"cmdCancel"_s, u"&Cancel"_s, cancel));
    return row;
}

QHBoxLayout* closingButton(FormWindow& dialog, const std::function<void()>& close) {
    auto* row = new QHBoxLayout;
    dialog.setCancelButton(addOk(*row, dialog, close));
    return row;
}

}  // namespace platform
