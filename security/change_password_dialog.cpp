#include "security/change_password_dialog.h"

#include <QFormLayout>
#include <QLabel>

#include "platform/forms/desktop.h"
#include "platform/forms/dialog_buttons.h"
#include "platform/forms/text_box.h"
#include "security/password_box.h"
#include "session/refusals.h"

using namespace Qt::StringLiterals;

namespace security {

ChangePasswordDialog::ChangePasswordDialog(platform::Desktop& desktop, const QString& name, const QString& caption,
                                           const QString& confirmation, const QString& note)
    : FormWindow(desktop, name, Kind::Dialog) {
    setCaption(caption);
    auto* rows = new QFormLayout(this);
    const QString steps =
        u"To change your password, just enter your old password and your new password, and confirm your new password "
        "by retyping it in the Confirm Password box."_s;
    for (const QString& paragraph : {steps, confirmation, note}) {
        auto* label = new QLabel(paragraph, this);
        label->setWordWrap(true);
        rows->addRow(label);
    }
    txtOld_ = &addPasswordBox(*rows, u"txtOld"_s, u"Old &Password:"_s);
    txtNew_ = &addPasswordBox(*rows, u"txtNew"_s, u"&New Password:"_s);
    txtConfirm_ = &addPasswordBox(*rows, u"txtConfirm"_s, u"Con&firm Password:"_s);
    rows->addRow(platform::dialogButtons(*this, handler([this] { cmdOK_Click(); }), handler([this] { unload(); })));
}

void ChangePasswordDialog::cmdOK_Click() {
    if (!accepts()) return;
    change(txtNew_->text());
    unload();
}

void ChangePasswordDialog::refuse(const QString& which) {
    desktop().notice(which + u" password.  No changes can be made."_s, u"Invalid Old Password"_s);
}

bool ChangePasswordDialog::canStore(const QString& password) {
    return session::canBeSecret(desktop(), password, u"password"_s);
}

bool ChangePasswordDialog::accepts() {
    if (txtOld_->text() != oldPassword()) {
        refuse(u"The old password does not match your current"_s);
        txtNew_->setText({});
        txtConfirm_->setText({});
        pointAt(*txtOld_);
        return false;
    }
    if (txtNew_->text() != txtConfirm_->text()) {
        refuse(u"The new password does not match your confirmation"_s);
        txtConfirm_->setText({});
        pointAtMismatch();
        return false;
    }
    if (canStore(txtNew_->text())) return true;
    txtConfirm_->setText({});
    pointAt(*txtNew_);
    return false;
}

}  // namespace security
