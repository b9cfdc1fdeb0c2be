#include "platform/base/file_replacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include "platform/base/file_errors.h"
#include "platform/base/files.h"
#include "platform/base/runtime_error.h"
#include "platform/base/unfinished.h"

namespace platform::files {

FileReplacement::FileReplacement(const QString& target) {
    // A link to a file stays a link: what it leads to is replaced.
    const QFileInfo info(target);
    const QFileInfo place(info.exists() ? info.canonicalFilePath() : info.absoluteFilePath());
    folder_ = place.absolutePath();
    target_ = QFile::encodeName(place.absoluteFilePath());
    if (!folderExists(folder_)) throw RuntimeError(Error::PathNotFound);
    // What takes the place of a device would cut it off from everyone.
    if (place.exists() && !place.isFile()) throw RuntimeError(Error::PermissionDenied);
    if (place.exists() && isReadOnly(target)) throw RuntimeError(Error::PermissionDenied);

    temporary_ = QFile::encodeName(unfinishedPath(folder_));
    descriptor_ = ::open(temporary_.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor_ < 0) throwSystemError(errno, Error::PathNotFound);
    claim(descriptor_);
}

unsigned FileReplacement::usualMode() const {
    struct stat status {};
    return ::fstat(descriptor_, &status) == 0 ? status.st_mode & 0777 : 0600;
}

FileReplacement::~FileReplacement() {
    ::close(descriptor_);
    if (!temporary_.isEmpty()) ::unlink(temporary_.constData());
}

QString FileReplacement::path() const {
    return QFile::decodeName(temporary_);
}

void FileReplacement::write(const QByteArray& bytes) {
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t written =
            ::write(descriptor_, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (written < 0 && errno != EINTR) throwSystemError(errno, Error::PathNotFound);
        if (written > 0) done += written;
    }
}

void FileReplacement::setMode(unsigned mode) {
    if (::fchmod(descriptor_, mode) == 0) return;
    // The file systems of most memory sticks know read-only files and writable ones, and nothing else.
    struct stat status {};
    const bool known = errno == EPERM && ::fstat(descriptor_, &status) == 0;
    constexpr mode_t everyonesWriting = S_IWUSR | S_IWGRP | S_IWOTH;
    const mode_t nearest = (mode & S_IWUSR) != 0 ? status.st_mode : status.st_mode & ~everyonesWriting;
    if (!known || ::fchmod(descriptor_, nearest & 07777) != 0) throwSystemError(errno, Error::PathNotFound);
}

void FileReplacement::keepMode() {
    struct stat old {};
    if (::stat(target_.constData(), &old) == 0) setMode(old.st_mode & 0777);
}

void FileReplacement::beginFlush() {
    // Whatever comes of it, flush() tells.
    ::sync_file_range(descriptor_, 0, 0, SYNC_FILE_RANGE_WRITE);
}

void FileReplacement::flush() {
    if (::fsync(descriptor_) != 0) throwSystemError(errno, Error::PathNotFound);
}

void FileReplacement::place(Flush when) {
    if (when == Flush::Now) flush();
    if (::rename(temporary_.constData(), target_.constData()) != 0) throwSystemError(errno, Error::PathNotFound);
    temporary_.clear();
}

void syncFolder(const QString& folder) {
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) throwSystemError(errno, Error::PathNotFound);
    const int error = ::fsync(descriptor) == 0 ? 0 : errno;
    ::close(descriptor);
    // Some file systems keep no cache of names and refuse the call: their names are lasting already.
    if (error != 0 && error != EINVAL) throwSystemError(error, Error::PathNotFound);
}

void settleFolder(const QString& folder) noexcept {
    try {
        syncFolder(folder);
    } catch (const RuntimeError&) {
        return;
    }
}

}  // namespace platform::files
