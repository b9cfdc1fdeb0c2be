#include "platform/base/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include "platform/base/file_errors.h"
#include "platform/base/folder_entries.h"
#include "platform/base/runtime_error.h"

namespace platform::files {

namespace {

struct stat statusOf(const QString& path) {
    if (!fileExists(path)) throw RuntimeError(Error::FileNotFound);
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) throwSystemError(errno, Error::FileNotFound);
    return status;
}

void unlinkName(const QString& path) {
    if (::unlink(QFile::encodeName(path).constData()) != 0) throwSystemError(errno, Error::FileNotFound);
}

}  // namespace

QChar separator() {
    return QDir::separator();
}

QString join(const QString& folder, const QString& name) {
    const bool closed = folder.isEmpty() || folder.endsWith(separator());
    return closed ? folder + name : folder + separator() + name;
}

QString nameOf(const QString& path) {
    return path.sliced(path.lastIndexOf(separator()) + 1);
}

QString folderOf(const QString& path) {
    return path.first(qMax(0, path.lastIndexOf(separator())));
}

bool fileExists(const QString& path) {
    return QFileInfo(path).isFile();
}

bool folderExists(const QString& path) {
    return QFileInfo(path).isDir();
}

bool isPlainFile(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat status {};
    // A name with a null in it would be cut there.
    return !name.contains('\0') && ::lstat(name.constData(), &status) == 0 && S_ISREG(status.st_mode);
}

qint64 fileSize(const QString& path) {
    return statusOf(path).st_size;
}

qint64 folderSize(const QString& folder) {
    const FolderEntries entries = entriesOf(folder);
    qint64 bytes = 0;
    for (const QString& name : entries.files)
        bytes += QFileInfo(join(folder, name)).size();
    for (const QString& name : entries.folders)
        bytes += folderSize(join(folder, name));
    return bytes;
}

void deleteFile(const QString& path, bool force) {
    if (isReadOnly(path) && !force) throw RuntimeError(Error::PermissionDenied);
    unlinkName(path);
}

void deleteAllFiles(const QString& folder) {
    const QStringList names = entriesOf(folder).files;
    if (names.isEmpty()) throw RuntimeError(Error::FileNotFound);
    for (const QString& name : names)
        deleteFile(join(folder, name), true);
}

void deleteFolder(const QString& path) {
    // A closing separator names what lies in the folder, not the folder.
    if (path.endsWith(separator())) throw RuntimeError(Error::PathNotFound);
    const FolderEntries entries = entriesOf(path);
    for (const QString& name : entries.files)
        deleteFile(join(path, name), true);
    for (const QString& name : entries.folders)
        deleteFolder(join(path, name));
    for (const QString& name : entries.links)
        unlinkName(join(path, name));
    if (::rmdir(QFile::encodeName(path).constData()) != 0) throwSystemError(errno, Error::PathNotFound);
}

void moveFile(const QString& path, const QString& target) {
    if (::rename(QFile::encodeName(path).constData(), QFile::encodeName(target).constData()) != 0)
        throwSystemError(errno, Error::FileNotFound);
}

void keepUnder(const QString& path, const QString& keptPath) {
    const QByteArray from = QFile::encodeName(path);
    const QByteArray to = QFile::encodeName(keptPath);
    if (::link(from.constData(), to.constData()) != 0 && ::rename(from.constData(), to.constData()) != 0)
        throwSystemError(errno, Error::FileNotFound);
}

bool isTaken(const QString& path) {
    struct stat status {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

bool isMissing(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) == 0) return false;
    if (errno == ENOENT || errno == ENOTDIR) return true;
    throwSystemError(errno, Error::FileNotFound);
}

bool mayRead(const QString& path) {
    return ::faccessat(AT_FDCWD, QFile::encodeName(path).constData(), R_OK, AT_EACCESS) == 0;
}

bool mayChange(const QString& folder) {
    return ::faccessat(AT_FDCWD, QFile::encodeName(folder).constData(), W_OK | X_OK, AT_EACCESS) == 0;
}

unsigned modeOf(const QString& path) {
    return statusOf(path).st_mode & 0777;
}

bool isReadOnly(const QString& path) {
    return (statusOf(path).st_mode & S_IWUSR) == 0;
}

void setReadOnly(const QString& path, bool readOnly) {
    constexpr mode_t everyonesWriting = S_IWUSR | S_IWGRP | S_IWOTH;
    const mode_t mode = statusOf(path).st_mode & 07777;
    const mode_t wanted = readOnly ? mode & ~everyonesWriting : mode | S_IWUSR;
    if (::chmod(QFile::encodeName(path).constData(), wanted) != 0) throwSystemError(errno, Error::FileNotFound);
}

}  // namespace platform::files
