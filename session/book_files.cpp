#include "session/book_files.h"

#include <QCoreApplication>
#include <algorithm>

#include "platform/base/file_identity.h"
#include "platform/base/files.h"
#include "platform/base/folder_entries.h"
#include "platform/base/runtime_error.h"
#include "session/session.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace session {

namespace {

/// One file by both paths; a file that isn't there yet is known by its place.
bool isOne(const QString& target, const QString& ours) {
    return files::isSameFile(target, ours) || files::resolvedPath(target) == files::resolvedPath(ours);
}

}  // namespace

void BookFiles::refuse(const QString& target) const {
    if (isOurs(target) || isAttached(target)) throw platform::RuntimeError(platform::Error::PermissionDenied);
}

bool BookFiles::isOurs(const QString& target) const {
    const QString live = files::join(applicationFolder, Session::liveDatabaseName());
    const QStringList ours{live, live + u"-journal"_s, files::join(applicationFolder, u"FamilyInfo_Empty.mdb"_s),
                           files::join(applicationFolder, u"SplashDef.txt"_s), QCoreApplication::applicationFilePath()};
    return std::ranges::any_of(ours, [&](const QString& file) { return isOne(target, file); });
}

bool BookFiles::isAttached(const QString& target) const {
    const QString folder = files::join(applicationFolder, u"Attachments"_s);
    if (!files::folderExists(folder)) return false;
    if (files::isWithin(target, folder)) return true;
    if (!files::fileExists(target)) return false;
    // Another name of a file that lies there.
    const QStringList names = files::entriesOf(folder).files;
    return std::ranges::any_of(
        names, [&](const QString& name) { return files::isSameFile(target, files::join(folder, name)); });
}

}  // namespace session
