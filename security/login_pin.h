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

    /// Asks for the password, which nobody who asked before has left in the box; true if it was given.
    [[nodiscard]] bool admits();

protected:
    [[nodiscard]] QString rightPassword() override;
    void admit() override { admitted_ = true; }

private:
    session::Session& session_;
    bool admitted_ = false;
};

}  // namespace security
