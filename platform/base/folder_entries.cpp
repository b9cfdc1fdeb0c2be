#include "platform/base/folder_entries.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include "platform/base/file_errors.h"
#include "platform/base/runtime_error.h"

namespace platform::files {

FolderEntries entriesOf(const QString& folder) {
    if (!QFileInfo(folder).isDir()) throw RuntimeError(Error::PathNotFound);
    FolderEntries entries;
    std::error_code error;
    std::filesystem::directory_iterator at(QFile::encodeName(folder).toStdString(), error);
    for (; !error && at != std::filesystem::directory_iterator(); at.increment(error)) {
        const QString name = QFile::decodeName(at->path().filename().c_str());
        std::error_code broken;
        const bool isFolder = at->is_directory(broken);
        const bool isLink = at->is_symlink(broken);
        const bool leadsToFile = !isFolder && at->exists(broken);
        (isLink && !leadsToFile ? entries.links : isFolder ? entries.folders : entries.files).append(name);
    }
    if (error) throwSystemError(error.value(), Error::PathNotFound);
    entries.files.sort();
    entries.folders.sort();
    return entries;
}

QString parentOf(const QString& path) {
    return QFileInfo(QDir::cleanPath(path)).absolutePath();
}

}  // namespace platform::files
