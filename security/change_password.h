#pragma once

#include "security/change_password_dialog.h"

namespace session {
struct Session;
}

namespace security {

/// Changes the main password, which lets the session change data from then on. An empty one turns the protection off.
class ChangePassword : public ChangePasswordDialog {
    Q_OBJECT

public:
    ChangePassword(platform::Desktop& desktop, session::Session& session);

    [[nodiscard]] static QString formName() { return QStringLiteral("frmChangePassword"); }

protected:
    [[nodiscard]] QString oldPassword() override;
    [[nodiscard]] bool canStore(const QString& password) override;
    void change(const QString& password) override;
    void pointAtMismatch() override;

private:
    session::Session& session_;
};

}  // namespace security
