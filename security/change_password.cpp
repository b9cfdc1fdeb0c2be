#include "security/change_password.h"

#include "platform/forms/text_box.h"
#include "session/definition_file.h"
#include "session/form_access.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace security {

ChangePassword::ChangePassword(platform::Desktop& desktop, session::Session& session)
    : ChangePasswordDialog(
          desktop, formName(), u"Change Password"_s, u"Then click OK and you have changed your password."_s,
          u"(Note that if you have not already set up a password, you should skip entering an old password and leave "
          "the Old Password field empty.)"_s),
      session_(session) {}

QString ChangePassword::oldPassword() {
    return session_.definition.gsMainPassword;
}

bool ChangePassword::canStore(const QString& password) {
    if (!ChangePasswordDialog::canStore(password)) return false;
    // Some signs and accented letters would break their line of the file, but only at some places.
    const auto place = session::lineBreakIn(password);
    if (place)
        session::showForeignCharacter(desktop(), password.sliced(*place, 1),
                                      u"as character %1 of the password, though elsewhere in it"_s.arg(*place + 1));
    return !place;
}

void ChangePassword::change(const QString& password) {
    session::Definition changed = session_.definition;
    changed.gsMainPassword = password;
    // What couldn't be stored isn't the password of this session either.
    session::writeDefinition(session_.path(u"SplashDef.txt"_s), changed);
    session_.definition = changed;
    session_.gbCanEdit = true;
    session::setAllFormsAccess(desktop(), true);
}

void ChangePassword::pointAtMismatch() {
    txtNew().setFocus();
    // As many characters as the old password has, whatever stands in the box.
    txtNew().select(0, static_cast<int>(txtOld().text().size()));
}

}  // namespace security
