#pragma once

namespace platform::files {

/// The number of the run-time error for one of the operating system (errno): 61 for a full disk or a file beyond the
/// limit, 70 for missing rights, 57 for a failing device, `missing` (53 or 76) where something isn't there, and 75 for
/// everything else.
[[nodiscard]] int errorNumberOf(int systemError, int missing);

/// Throws that RuntimeError.
[[noreturn]] void throwSystemError(int systemError, int missing);

}  // namespace platform::files
