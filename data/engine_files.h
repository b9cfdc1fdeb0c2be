#pragma once

namespace data {

/// Name under which SQLite knows the operating system's files as this program wants them, for its opening.
///
/// A save ends with the deletion of its journal. When that is done, and only the flush of the folder behind it fails,
/// the change is in the file and can't be taken back: it isn't told as a failure, for who repeats it would make it
/// twice.
[[nodiscard]] const char* engineFiles();

}  // namespace data
