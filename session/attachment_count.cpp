#include "session/attachment_count.h"

#include "data/recordset.h"
#include "platform/base/conversions.h"

using namespace Qt::StringLiterals;

namespace session {

QString attachmentCount(data::Recordset& lookup, data::Connection& connection, const QString& key) {
    lookup.release();
    lookup.open(u"Select Count(*) as AttachCnt from Attachments where BugNum = '"_s + key + u"'"_s, connection);
    return u"Attachments: "_s + platform::str(lookup.value(u"AttachCnt"_s).toDouble());
}

}  // namespace session
