#pragma once

#include "security/change_password_dialog.h"
#include "security/list_password.h"

namespace session {
struct Session;
}

namespace security {

/// Changes the password of the PIN lists: of every member's, where there is one already.
class ChangePinPassword : public ChangePasswordDialog {
    Q_OBJECT

public:
    ChangePinPassword(platform::Desktop& desktop, session::Session& session);

    [[nodiscard]] static QString formName() { return QStringLiteral("frmChangePINPassword"); }

protected:
    [[nodiscard]] QString oldPassword() override;
    void change(const QString& password) override;

private:
    void replacePassword(const QString& enciphered);
    void addProtectedRow(const QString& enciphered);
    void run(const QString& statement);

    session::Session& session_;
    ListPassword stored_;
};

}  // namespace security
