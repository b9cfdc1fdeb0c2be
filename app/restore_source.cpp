#include "app/restore_source.h"

#include "platform/base/files.h"
#include "platform/forms/desktop.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace app {

QString chooseRestoreSource(platform::Desktop& desktop, session::Session& session) {
    QString chosen = desktop.dialogs().fileDialog({.folder = session.applicationFolder,
                                                   .filterText = u"Database Files (*.mdb)"_s,
                                                   .filterPattern = u"*.mdb"_s,
                                                   .title = u"Database to Restore"_s});
    session.gsDatabaseName = platform::files::nameOf(chosen);
    session.gsDatabasePath = chosen;
    return chosen;
}

void tellNoRestoreSource(platform::Desktop& desktop) {
    desktop.notice(u"No database name was selected to restore."_s, u"No Database Name"_s);
}

bool restoreSourceExists(platform::Desktop& desktop, const QString& path) {
    if (platform::files::fileExists(path)) return true;
    desktop.notice(path + u" does not exist.  No database was opened."_s, u"File Does Not Exist"_s);
    return false;
}

}  // namespace app
