#pragma once

#include <QString>

namespace platform {

/// Starts the program that the user's desktop has registered for a file of this kind, and returns at once; the program
/// runs on by itself. Programs that need a terminal are passed over. Throws 53 for a missing file, 1155 when no program
/// is registered or the registered one doesn't start.
void openWithRegisteredProgram(const QString& path);

}  // namespace platform
