#include "app/read_only_file.h"

#include "platform/forms/desktop.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace app {

void tellIfReadOnly(platform::Desktop& desktop, const session::Session& session) {
    if (!session.gConnection.isOpen() || !session.gConnection.isReadOnly()) return;
    desktop.notice(u"Your database, "_s + session.gConnection.path() +
                       u", can only be read.  You can look at your records and print them, but nothing that you enter "
                       "can be saved.  To change records, allow the file and its folder to be written, and start "
                       "Kinbook again."_s,
                   u"Read-Only Database"_s);
}

}  // namespace app
