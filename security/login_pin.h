#pragma once

#include "security/login_dialog.h"

namespace session {
struct Session;
}

namespace security {

/// Stands before the selected member's list of accounts.
class LoginPin : public LoginDialog {
    Q_OBJECT

public:
    LoginPin(platform::Desktop& desktop, session::Session& session);

    [[nodiscard]] static QString formName() { return QStringLiteral("frmLoginPIN"); }

protected:
    [[nodiscard]] QString rightPassword() override;

private:
    session::Session& session_;
};

}  // namespace security
