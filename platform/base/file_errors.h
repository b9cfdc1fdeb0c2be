#pragma once

#include "platform/base/runtime_error.h"

namespace platform::files {

/// What an error of the operating system (errno) is called here: DiskFull also for a file beyond the limit,
/// PermissionDenied for missing rights, DeviceFailure, `missing` (FileNotFound or PathNotFound) where something isn't
/// there, and PathAccess for everything else.
[[nodiscard]] Error errorOf(int systemError, Error missing);

/// Throws that RuntimeError.
[[noreturn]] void throwSystemError(int systemError, Error missing);

}  // namespace platform::files
