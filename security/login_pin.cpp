#include "security/login_pin.h"

#include "security/list_password.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace security {

LoginPin::LoginPin(platform::Desktop& desktop, session::Session& session)
    : LoginDialog(desktop, formName(), u"PIN/Password Screen Login"_s), session_(session) {}

bool LoginPin::admits() {
    admitted_ = false;
    clear();
    showModal();
    return admitted_;
}

QString LoginPin::rightPassword() {
    return readListPassword(session_.gConnection, session_.gPersonID).password;
}

}  // namespace security
