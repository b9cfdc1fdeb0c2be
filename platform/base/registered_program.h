#pragma once

#include <QString>

namespace platform {

/// Starts the program that the user's desktop has for files of this kind, and returns at once; the program runs on by
/// itself. `name`: what the file is called by its user, which tells its kind where the path no longer does. Throws 53
/// for a missing file, 1155 when there is no program, or with the desktop's words when it doesn't start.
void openWithRegisteredProgram(const QString& path, const QString& name);

}  // namespace platform
