#include "platform/base/file_identity.h"

#include <sys/stat.h>

#include <QFile>
#include <filesystem>
#include <system_error>

#include "platform/base/file_errors.h"
#include "platform/base/files.h"

namespace platform::files {

bool isSameFile(const QString& path, const QString& other) {
    struct stat first {};
    struct stat second {};
    if (::stat(QFile::encodeName(path).constData(), &first) != 0) return false;
    if (::stat(QFile::encodeName(other).constData(), &second) != 0) return false;
    return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

QString resolvedPath(const QString& path) {
    std::error_code error;
    const auto resolved = std::filesystem::weakly_canonical(QFile::encodeName(path).toStdString(), error);
    if (error) throwSystemError(error.value(), Error::PathNotFound);
    return QFile::decodeName(resolved.c_str());
}

bool isWithin(const QString& path, const QString& folder) {
    const QString inner = resolvedPath(path);
    const QString outer = resolvedPath(folder);
    return inner == outer || inner.startsWith(join(outer, {}));
}

}  // namespace platform::files
