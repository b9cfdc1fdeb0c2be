#include "security/list_password.h"

#include "data/cipher.h"
#include "data/pin_secrets.h"
#include "data/recordset.h"

using namespace Qt::StringLiterals;

namespace security {

ListPassword readListPassword(data::Connection& connection, qint16 personID) {
    data::Recordset row;
    row.open(u"SELECT * from PIN_Password where Account = '"_s + data::protectedAccount() + u"' and PersonID = "_s +
                 QString::number(personID),
             connection);
    if (row.eof()) return {};
    const QString secret = row.value(u"PIN_Password"_s).toString();
    const QString mark = row.value(u"Encrypted"_s).toString();
    if (mark == data::plainMark()) return {true, secret, data::cipher(mark)};
    return {true, data::cipher(secret), mark};
}

}  // namespace security
