#include "platform/base/unfinished.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>
#include <cerrno>

#include "platform/base/files.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace platform::files {

namespace {

const QString unfinishedPrefix = u".kinbook-"_s;
const QString journalEnding = u"-journal"_s;

int openToClaim(const QString& path) {
    return ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
}

void discardUnlessClaimed(const QString& path) {
    const int descriptor = openToClaim(path);
    // What can't be opened is nobody's work: everyone may read his own.
    if (descriptor < 0 || claim(descriptor)) {
        try {
            if (folderExists(path))
                deleteFolder(path);
            else
                QFile::remove(path);
        } catch (const RuntimeError&) {
            // It is in nobody's way, and the next run tries again.
        }
    }
    if (descriptor >= 0) ::close(descriptor);
}

}  // namespace

QString unfinishedPath(const QString& folder) {
    return join(folder, unfinishedPrefix + QUuid::createUuid().toString(QUuid::Id128));
}

bool claim(int descriptor) {
    return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

void discardUnfinished(const QString& folder) {
    const QDir inside(folder);
    const QString unfinished = unfinishedPrefix + u"[0-9a-f]"_s.repeated(32);
    const QStringList names =
        inside.entryList({unfinished}, QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QString& name : names)
        discardUnlessClaimed(inside.filePath(name));
    // A database may have been changed under its unfinished name; the journal of one that is still worked on stays.
    const QStringList journals = inside.entryList({unfinished + journalEnding}, QDir::Files | QDir::Hidden);
    for (const QString& name : journals)
        if (!inside.exists(name.chopped(journalEnding.size()))) QFile::remove(inside.filePath(name));
}

FolderClaim::FolderClaim(const QString& folder)
    : descriptor_(openToClaim(folder)), held_(descriptor_ < 0 || claim(descriptor_)) {}

FolderClaim::~FolderClaim() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace platform::files
