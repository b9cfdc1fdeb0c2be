#pragma once

#include <QString>
#include <QStringList>
#include <functional>

/// Files and folders, with the errors that a user is told by number. A read-only file is one whose owner may not write
/// it; the refusals (70) are made here, so that they hold for every user. Paths use the platform's own separator.
namespace platform::files {

/// Changes the finished copy, which lies under another name yet, before it becomes the target.
using CopyFinish = std::function<void(const QString& copy)>;

[[nodiscard]] QChar separator();
/// Folder and name with one separator between them.
[[nodiscard]] QString join(const QString& folder, const QString& name);
/// What stands behind the last separator; the whole path without one.
[[nodiscard]] QString nameOf(const QString& path);
/// What stands before the last separator; "" without one.
[[nodiscard]] QString folderOf(const QString& path);

/// False for a folder, and for "".
[[nodiscard]] bool fileExists(const QString& path);
[[nodiscard]] bool folderExists(const QString& path);
/// True for a file that lies there itself: no link, no folder, no device.
[[nodiscard]] bool isPlainFile(const QString& path);

/// Bytes; error 53 for a missing file.
[[nodiscard]] qint64 fileSize(const QString& path);
/// Bytes of all files in it and in its subfolders; error 76 for a missing folder, 70 for a part that can't be read.
[[nodiscard]] qint64 folderSize(const QString& folder);

/// Copies a file with its attributes, as far as a new file of this user may have them. The target is replaced whole, on
/// the disk when this returns, or left as it was. Errors: 53 no source, 76 no folder for the target, 70 a read-only
/// target or the source itself, 61 disk full.
void copyFile(const QString& source, const QString& target, const CopyFinish& finish = {});
/// The same with these permission bits.
void copyFileWithMode(const QString& source, const QString& target, unsigned mode);
/// The same as copyFile() without the wait for the disk: flush() must follow before anything relies on the copy.
void copyFileUnflushed(const QString& source, const QString& target);
/// Returns when a file and its name are on the disk. Errors: 53 missing, 61 disk full.
void flush(const QString& path);
/// Copies the files of a folder, not its subfolders, each as copyFile(); stops at the first error. 53 when there are
/// none.
void copyAllFiles(const QString& folder, const QString& targetFolder);
/// Moves the files of a folder, not its subfolders, into another one; on the disk when this returns. Between two disks
/// each is copied and then deleted. Stops at the first error.
void moveAllFiles(const QString& folder, const QString& targetFolder);
/// True for two folders that share their room, for they lie on one disk.
[[nodiscard]] bool areOnOneDisk(const QString& folder, const QString& other);
/// Errors: 53 missing, 70 read-only and not forced.
void deleteFile(const QString& path, bool force);
/// Deletes the files of a folder, read-only ones too, not its subfolders; stops at the first error. 53 when there are
/// none.
void deleteAllFiles(const QString& folder);

/// Renames a file over another one, or into a name that is free. The new name is lasting after syncFolder().
void moveFile(const QString& path, const QString& target);
/// Gives what lies at a path another name in the same folder, which must be free. Where the file system can, the old
/// name stays until something else takes it.
void keepUnder(const QString& path, const QString& keptPath);
/// False when nothing lies at the path; a link to nothing is something.
[[nodiscard]] bool isTaken(const QString& path);
/// True when no file or folder is to be found at the path. Throws the system's error where that can't be told, as in a
/// folder that this user may not enter.
[[nodiscard]] bool isMissing(const QString& path);
/// This user may read the file.
[[nodiscard]] bool mayRead(const QString& path);
/// This user may make and delete files in the folder.
[[nodiscard]] bool mayChange(const QString& folder);

/// Copies what a folder holds, with its subfolders but without links to folders, into a folder that is made or merged
/// into. Error 76 for a source that is missing or has a separator at its end, otherwise as copyFile().
void copyFolder(const QString& source, const QString& target);
/// Makes a folder that isn't there. Errors: 76 where it would lie in a missing one, 75 for a file in its place.
void makeFolder(const QString& path);
/// Deletes a folder with all it holds, read-only files too. Error 76 for one that is missing or has a separator at its
/// end.
void deleteFolder(const QString& path);

/// The permission bits of a file; error 53 for a missing one.
[[nodiscard]] unsigned modeOf(const QString& path);
/// Error 53 for a missing file.
[[nodiscard]] bool isReadOnly(const QString& path);
void setReadOnly(const QString& path, bool readOnly = true);

/// The lines of a single-byte text file. Only LF ends a line, and a CR right before it is dropped; behind the last LF
/// stands no empty line. Errors: 53 missing, 70 unreadable.
[[nodiscard]] QStringList readLines(const QString& path);
/// Writes a whole text as single bytes, as it stands. The file is replaced whole or left as it was.
/// Errors: 5 for a character outside the code page, 70 for a read-only file, 76 for a missing folder, 61 disk full.
void writeTextFile(const QString& path, const QString& text);

}  // namespace platform::files
