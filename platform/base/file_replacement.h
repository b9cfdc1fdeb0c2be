#pragma once

#include <QByteArray>
#include <QString>

namespace platform::files {

/// A file in the making beside the one that it will replace: until place() the old one stays whole, and without it
/// nothing is left behind.
class FileReplacement {
public:
    /// Errors: 76 without the target's folder, 70 where the target is read-only, no file but a folder or a device, or
    /// can't be made.
    explicit FileReplacement(const QString& target);
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Where the file lies until place().
    [[nodiscard]] QString path() const;
    /// The open file, for writing.
    [[nodiscard]] int descriptor() const { return descriptor_; }
    /// The target's folder.
    [[nodiscard]] const QString& folder() const { return folder_; }
    /// Error 61 when the disk is full.
    void write(const QByteArray& bytes);
    /// The permission bits of a new file of this user, as long as no others are set.
    [[nodiscard]] unsigned usualMode() const;
    /// Gives the file these permission bits.
    void setMode(unsigned mode);
    /// Gives the file the permission bits of the one that it replaces, if there is one.
    void keepMode();
    /// Has the disk begin with what is written so far, and doesn't wait: the flush() that has to follow is sooner over.
    void beginFlush();
    /// Waits until the file is on the disk; error 57 for a failing device.
    void flush();
    enum class Flush { Now, Later };
    /// Flushes the file to the disk, unless that comes later, and renames it over the target. The new name is lasting
    /// after syncFolder().
    void place(Flush when = Flush::Now);

private:
    QString folder_;
    QByteArray target_;
    QByteArray temporary_;
    int descriptor_ = -1;
};

/// Makes the names in a folder last through a power cut.
void syncFolder(const QString& folder);
/// The same behind a change that is done and can't be taken back: its failure is none of the change's and isn't told.
void settleFolder(const QString& folder) noexcept;

}  // namespace platform::files
