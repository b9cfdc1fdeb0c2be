#include "security/change_pin_password.h"

#include "data/cipher.h"
#include "data/pin_secrets.h"
#include "data/recordset.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace security {

ChangePinPassword::ChangePinPassword(platform::Desktop& desktop, session::Session& session)
    : ChangePasswordDialog(
          desktop, formName(), u"Change PIN/Password Screen Password"_s,
          u"Then click OK and you have changed your password for the PIN/Password Screen."_s,
          u"(Note that if you have not already set up a password, you should skip entering an old password and leave "
          "the Old Password field blank.)"_s),
      session_(session) {}

QString ChangePinPassword::oldPassword() {
    stored_ = readListPassword(session_.gConnection, session_.gPersonID);
    return stored_.password;
}

void ChangePinPassword::change(const QString& password) {
    stored_.hasRow ? replacePassword(data::cipher(password)) : addProtectedRow(data::cipher(password));
}

void ChangePinPassword::replacePassword(const QString& enciphered) {
    // No member is named: the family has one password for all its lists.
    const QString where = u"' Where Account = '%1'"_s.arg(data::protectedAccount());
    run(u"Update PIN_Password Set PIN_Password = '"_s + enciphered + where);
    run(u"Update PIN_Password Set Encrypted = '"_s + stored_.encipheredMark + where);
}

void ChangePinPassword::addProtectedRow(const QString& enciphered) {
    // Every member's list makes room at its top; its next change closes the gap.
    run(u"Update PIN_Password Set Seq = Seq + 1 Where Seq >= 1"_s);
    data::Recordset row(data::Opening::List);
    row.open(u"Select * from PIN_Password where 1=2"_s, session_.gConnection);
    row.addNew();
    row.setValue(u"Seq"_s, 1);
    row.setValue(u"Account"_s, data::protectedAccount());
    row.setValue(u"PIN_Password"_s, enciphered);
    row.setValue(u"PersonID"_s, session_.gPersonID);
    row.setValue(u"Encrypted"_s, data::cipher(data::plainMark()));
    row.update();
}

void ChangePinPassword::run(const QString& statement) {
    data::Recordset work;
    work.open(statement, session_.gConnection);
}

}  // namespace security
