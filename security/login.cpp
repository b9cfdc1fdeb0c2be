#include "security/login.h"

#include "session/form_access.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace security {

Login::Login(platform::Desktop& desktop, session::Session& session)
    : LoginDialog(desktop, formName(), u"Login"_s), session_(session) {}

QString Login::rightPassword() {
    return session_.definition.gsMainPassword;
}

void Login::admit() {
    session_.gbCanEdit = true;
    session::setAllFormsAccess(desktop(), true);
}

}  // namespace security
