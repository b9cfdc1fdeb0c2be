#pragma once

#include <QString>

// Files and folders in the making. They bear names of their own beside what they will replace and are locked while
// they are worked on, so that what a dead run left behind is told from what a living one is at.

namespace platform::files {

/// A path in the folder, free and recognised by discardUnfinished().
[[nodiscard]] QString unfinishedPath(const QString& folder);

/// Locks an open file or folder until it is closed. False when another run of the program has locked it; true also
/// where the file system knows no locks.
bool claim(int descriptor);

/// Deletes what a run that died left of its work in a folder, as far as that can be deleted. What another run is still
/// working on stays.
void discardUnfinished(const QString& folder);

/// A folder kept for this run's work while the object lives, as far as other runs ask for it.
class FolderClaim {
public:
    /// Waits for nobody; see isHeld().
    explicit FolderClaim(const QString& folder);
    ~FolderClaim();
    FolderClaim(const FolderClaim&) = delete;
    FolderClaim& operator=(const FolderClaim&) = delete;

    /// False when another run has the folder.
    [[nodiscard]] bool isHeld() const { return held_; }

private:
    int descriptor_;
    bool held_;
};

}  // namespace platform::files
