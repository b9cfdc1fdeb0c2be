#pragma once

#include <QString>
#include <QStringList>

namespace platform::files {

/// Names in a folder, sorted, hidden ones too. Links to files count as files; links to folders are left alone, for they
/// lead out of the folder and could lead in a circle.
struct FolderEntries {
    QStringList files;
    QStringList folders;
    QStringList links;  ///< to folders, or to nothing
};

/// Error 76 for a missing folder, 70 for one that can't be read.
[[nodiscard]] FolderEntries entriesOf(const QString& folder);

/// The folder that a file or folder lies in, also for a relative path.
[[nodiscard]] QString parentOf(const QString& path);

}  // namespace platform::files
