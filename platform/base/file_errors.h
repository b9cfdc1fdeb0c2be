#pragma once

namespace platform::files {

/// Throws the RuntimeError for an error number of the operating system (errno): 61 for a full disk or a file beyond
/// the limit, 70 for missing rights, 57 for a failing device, `missing` (53 or 76) where something isn't there, and 75
/// for everything else.
[[noreturn]] void throwSystemError(int systemError, int missing);

}  // namespace platform::files
