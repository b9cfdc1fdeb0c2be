#include "platform/base/folder_replacement.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>

#include "platform/base/file_errors.h"
#include "platform/base/file_replacement.h"
#include "platform/base/files.h"
#include "platform/base/folder_entries.h"
#include "platform/base/runtime_error.h"
#include "platform/base/unfinished.h"

using namespace Qt::StringLiterals;

namespace platform::files {

namespace {

/// What lies at the path, which may be a link to a folder elsewhere.
QString placeOf(const QString& target) {
    const QFileInfo info(target);
    return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

bool rename(const QString& from, const QString& to, unsigned flags = 0) {
    return ::renameat2(AT_FDCWD, QFile::encodeName(from).constData(), AT_FDCWD, QFile::encodeName(to).constData(),
                       flags) == 0;
}

/// For file systems that can't exchange two names in one step. The old folder bears a name that nothing deletes until
/// the new one has its place.
void exchangeByTurns(const QString& fresh, const QString& target) {
    const QString old = target + u".old"_s;
    if (folderExists(old)) deleteFolder(old);
    if (!rename(target, old)) throwSystemError(errno, Error::PathNotFound);
    if (!rename(fresh, target)) {
        const int error = errno;
        rename(old, target);
        throwSystemError(error, Error::PathNotFound);
    }
    rename(old, fresh);
}

}  // namespace

FolderReplacement::FolderReplacement(const QString& target) : target_(placeOf(target)) {
    if (fileExists(target_)) throw RuntimeError(Error::PathAccess);
    path_ = unfinishedPath(parentOf(target_));
    makeFolder(path_);
    descriptor_ = ::open(QFile::encodeName(path_).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor_ >= 0) claim(descriptor_);
}

FolderReplacement::~FolderReplacement() {
    try {
        if (folderExists(path_)) deleteFolder(path_);
    } catch (const RuntimeError&) {
        // Left for the next run to delete.
    }
    if (descriptor_ >= 0) ::close(descriptor_);
}

void FolderReplacement::place() {
    if (!folderExists(target_)) {
        if (!rename(path_, target_)) throwSystemError(errno, Error::PathNotFound);
    } else if (!rename(path_, target_, RENAME_EXCHANGE)) {
        exchangeByTurns(path_, target_);
    }
    syncFolder(parentOf(target_));
}

}  // namespace platform::files
