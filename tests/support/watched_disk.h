#pragma once

#include <QString>
#include <QStringList>

namespace support {

/// What the program asks of the disk while this lives, by whichever library: "write PATH", "flush PATH", "rename PATH
/// TARGET", "make PATH" for a folder, and "remove PATH", in their order. Linked into a test it stands before the
/// system's own functions.
class WatchedDisk {
public:
    WatchedDisk();
    ~WatchedDisk();
    WatchedDisk(const WatchedDisk&) = delete;
    WatchedDisk& operator=(const WatchedDisk&) = delete;

    /// All operations so far.
    [[nodiscard]] QStringList operations() const;
    /// From here on the process dies instead of the operation that follows so many others.
    void dieAfter(int operations);
    /// From here on the flush that follows so many others fails, as on a failing device; only that one.
    void failFlushAfter(int flushes);
    /// From here on nothing can be removed.
    void refuseRemovals();
    /// Place of the last operation of that kind before `end`; -1 for none.
    [[nodiscard]] qsizetype last(const QString& operation, qsizetype end = -1) const;
};

}  // namespace support
