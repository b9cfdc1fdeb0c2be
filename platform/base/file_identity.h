#pragma once

#include <QString>
#include <QStringList>

namespace platform::files {

/// True where both paths lead to one file or folder that is there, whatever their spelling: through links, other names
/// of the same file and "..".
[[nodiscard]] bool isSameFile(const QString& path, const QString& other);

/// A path without links and "..", as far as it is there. Errors: 70 where a part may not be read, 75 for a name that is
/// too long or a circle of links, 57 for a device that doesn't answer.
[[nodiscard]] QString resolvedPath(const QString& path);

/// True for a path at or under a folder, by where both lead. Errors as resolvedPath().
[[nodiscard]] bool isWithin(const QString& path, const QString& folder);

}  // namespace platform::files
