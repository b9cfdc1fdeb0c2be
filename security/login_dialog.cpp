#include "security/login_dialog.h"

#include <QFormLayout>

#include "platform/forms/desktop.h"
#include "platform/forms/dialog_buttons.h"
#include "platform/forms/text_box.h"
#include "security/password_box.h"

using namespace Qt::StringLiterals;

namespace security {

LoginDialog::LoginDialog(platform::Desktop& desktop, const QString& name, const QString& caption)
    : FormWindow(desktop, name, Kind::Dialog) {
    setCaption(caption);
    auto* rows = new QFormLayout(this);
    txtPassword_ = &addPasswordBox(*rows, u"txtPassword"_s, u"&Password:"_s);
    rows->addRow(
        platform::dialogButtons(*this, handler([this] { cmdOK_Click(); }), handler([this] { cmdCancel_Click(); })));
}

void LoginDialog::Form_Load() {
    txtPassword_->selectAll();
}

void LoginDialog::clear() {
    txtPassword_->setText({});
}

void LoginDialog::cmdOK_Click() {
    if (txtPassword_->text() != rightPassword()) {
        desktop().notice(u"Invalid Password, try again!"_s, u"Login"_s);
        pointAt(*txtPassword_);
        return;
    }
    admit();
    pointAt(*txtPassword_);
    hide();
}

void LoginDialog::cmdCancel_Click() {
    pointAt(*txtPassword_);
    hide();
}

}  // namespace security
