#include "session/session.h"

#include "platform/base/files.h"

namespace session {

QString Session::path(const QString& name) const {
    return platform::files::join(applicationFolder, name);
}

QString Session::liveDatabaseName() {
    return QStringLiteral("FamilyInfo.mdb");
}

void Session::useLiveDatabase() {
    gsDatabaseName = liveDatabaseName();
    gsDatabasePath = path(gsDatabaseName);
}

}  // namespace session
