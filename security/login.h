#pragma once

#include "security/login_dialog.h"

namespace session {
struct Session;
}

namespace security {

/// Lets a session that may only read change data as well. There is no way back within the run.
class Login : public LoginDialog {
    Q_OBJECT

public:
    Login(platform::Desktop& desktop, session::Session& session);

    [[nodiscard]] static QString formName() { return QStringLiteral("frmLogin"); }

protected:
    [[nodiscard]] QString rightPassword() override;
    void admit() override;

private:
    session::Session& session_;
};

}  // namespace security
