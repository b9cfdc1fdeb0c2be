#pragma once

#include <QString>

namespace platform::files {

/// A folder in the making beside the one that it will replace: until place() the old one stays whole, and without it
/// nothing is left behind.
class FolderReplacement {
public:
    /// Errors: 76 where the target would lie in a missing folder, 75 for a file in its place, 70 where it can't be
    /// made.
    explicit FolderReplacement(const QString& target);
    ~FolderReplacement();
    FolderReplacement(const FolderReplacement&) = delete;
    FolderReplacement& operator=(const FolderReplacement&) = delete;

    /// The new folder, to be filled; what is put into it must be flushed before place().
    [[nodiscard]] const QString& path() const { return path_; }
    /// Gives the new folder its name, on the disk when this returns, and deletes the old one.
    void place();

private:
    QString target_;
    QString path_;
    int descriptor_ = -1;
};

}  // namespace platform::files
