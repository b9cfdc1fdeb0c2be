#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/base/file_errors.h"
#include "platform/base/file_replacement.h"
#include "platform/base/files.h"
#include "platform/base/folder_entries.h"
#include "platform/base/runtime_error.h"

namespace platform::files {

namespace {

constexpr qint64 chunkBytes = 8 << 20;

/// A file open for reading.
class SourceFile {
public:
    explicit SourceFile(const QString& path) {
        if (!fileExists(path)) throw RuntimeError(Error::FileNotFound);
        descriptor_ = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
        if (descriptor_ < 0 || ::fstat(descriptor_, &status_) != 0) {
            const int error = errno;
            if (descriptor_ >= 0) ::close(descriptor_);
            throwSystemError(error, Error::FileNotFound);
        }
    }
    ~SourceFile() { ::close(descriptor_); }
    SourceFile(const SourceFile&) = delete;
    SourceFile& operator=(const SourceFile&) = delete;

    [[nodiscard]] int descriptor() const { return descriptor_; }
    [[nodiscard]] qint64 size() const { return status_.st_size; }
    [[nodiscard]] unsigned mode() const { return status_.st_mode & 0777; }
    [[nodiscard]] bool isSameAs(const QString& path) const {
        struct stat other {};
        if (::stat(QFile::encodeName(path).constData(), &other) != 0) return false;
        return other.st_dev == status_.st_dev && other.st_ino == status_.st_ino;
    }

private:
    int descriptor_ = -1;
    struct stat status_ {};
};

/// Copies the contents of one file into another.
class ContentCopy {
public:
    ContentCopy(const SourceFile& source, FileReplacement& target) : source_(source), target_(target) {}

    void run() {
        for (off_t at = 0; at < source_.size();) {
            const auto wanted = static_cast<std::size_t>(std::min<qint64>(chunkBytes, source_.size() - at));
            const ssize_t copied = inKernel_ ? copyInKernel(at, wanted) : copyThroughBuffer(at, wanted);
            // The source became shorter while it was copied: half a file must not pass for a whole one.
            if (copied == 0) throw RuntimeError(Error::PathAccess);
            at += copied;
        }
    }

private:
    ssize_t copyInKernel(off_t at, std::size_t wanted) {
        off_t from = at;
        off_t to = at;
        const ssize_t copied = ::copy_file_range(source_.descriptor(), &from, target_.descriptor(), &to, wanted, 0);
        if (copied > 0) return copied;
        const bool full = copied < 0 && (errno == ENOSPC || errno == EDQUOT || errno == EFBIG || errno == EIO);
        if (full) throwSystemError(errno, Error::FileNotFound);
        // Not between these two file systems: by hand from here on.
        inKernel_ = false;
        return copyThroughBuffer(at, wanted);
    }

    ssize_t copyThroughBuffer(off_t at, std::size_t wanted) {
        constexpr std::size_t bufferBytes = 1 << 20;
        buffer_.resize(static_cast<qsizetype>(std::min(bufferBytes, wanted)));
        const ssize_t read =
            ::pread(source_.descriptor(), buffer_.data(), static_cast<std::size_t>(buffer_.size()), at);
        if (read < 0) throwSystemError(errno, Error::FileNotFound);
        buffer_.truncate(read);
        if (::lseek(target_.descriptor(), at, SEEK_SET) < 0) throwSystemError(errno, Error::PathNotFound);
        target_.write(buffer_);
        return read;
    }

    const SourceFile& source_;
    FileReplacement& target_;
    QByteArray buffer_;
    bool inKernel_ = true;
};

struct CopyOptions {
    CopyFinish finish{};
    std::optional<unsigned> mode{};  ///< permission bits of the copy; the source's otherwise
    FileReplacement::Flush flush = FileReplacement::Flush::Now;
};

/// Makes a whole copy, which is still to be placed.
std::unique_ptr<FileReplacement> makeCopy(const QString& source, const QString& target,
                                          const CopyOptions& options = {}) {
    const SourceFile from(source);
    if (from.isSameAs(target)) throw RuntimeError(Error::PermissionDenied);
    auto to = std::make_unique<FileReplacement>(target);
    const unsigned mode = options.mode.value_or(from.mode() & to->usualMode());
    // Nobody else reads in the copy while it is made; what is made read-only may still be finished.
    constexpr unsigned ownersAlone = 0600;
    to->setMode(ownersAlone);
    ContentCopy(from, *to).run();
    if (options.finish) options.finish(to->path());
    to->setMode(mode);
    return to;
}

/// Copies one file, and gives the folder that is to be synced before the copy is lasting.
QString copyUnsynced(const QString& source, const QString& target, const CopyOptions& options = {}) {
    const auto copy = makeCopy(source, target, options);
    copy->place(options.flush);
    return copy->folder();
}

/// Copies of several files, placed together. The disk writes one while the next are copied, and the first flush takes
/// most of the others along: hundreds of files take a fraction of the time that they take with a wait at each. Each is
/// on the disk before it bears its name, so that a power cut leaves none of the right name torn.
class Batch {
public:
    void add(const QString& source, const QString& target) {
        copies_.push_back(makeCopy(source, target));
        copies_.back()->beginFlush();
        if (copies_.size() >= mostOpenFiles) place();
    }
    /// Places those that reach the disk, also when one doesn't; throws for that one behind the others.
    void place() {
        std::optional<RuntimeError> failure;
        for (auto& copy : copies_) {
            try {
                copy->flush();
            } catch (const RuntimeError& error) {
                if (!failure) failure = error;
                copy.reset();
            }
        }
        for (const auto& copy : std::exchange(copies_, {})) {
            if (copy) copy->place(FileReplacement::Flush::Later);
        }
        if (failure) throw RuntimeError(*failure);
    }

private:
    static constexpr std::size_t mostOpenFiles = 128;

    std::vector<std::unique_ptr<FileReplacement>> copies_;
};

void copyFiles(const QStringList& names, const QString& folder, const QString& targetFolder) {
    Batch batch;
    try {
        for (const QString& name : names)
            batch.add(join(folder, name), join(targetFolder, name));
    } catch (const RuntimeError&) {
        // The files before the one that failed are there.
        batch.place();
        throw;
    }
    batch.place();
    syncFolder(targetFolder);
}

/// Between two disks the copy is lasting before the file goes.
void moveBetweenDisks(const QString& path, const QString& target) {
    // Left by a run that died before it could delete the file.
    if (isTaken(target)) deleteFile(target, true);
    copyFile(path, target);
    deleteFile(path, true);
}

}  // namespace

void copyFile(const QString& source, const QString& target, const CopyFinish& finish) {
    syncFolder(copyUnsynced(source, target, {.finish = finish}));
}

void copyFileWithMode(const QString& source, const QString& target, unsigned mode) {
    syncFolder(copyUnsynced(source, target, {.mode = mode}));
}

void copyFileUnflushed(const QString& source, const QString& target) {
    copyUnsynced(source, target, {.flush = FileReplacement::Flush::Later});
}

void flush(const QString& path) {
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    const int error = descriptor >= 0 && ::fsync(descriptor) == 0 ? 0 : errno;
    if (descriptor >= 0) ::close(descriptor);
    if (error != 0) throwSystemError(error, Error::FileNotFound);
    syncFolder(parentOf(path));
}

void copyAllFiles(const QString& folder, const QString& targetFolder) {
    const QStringList names = entriesOf(folder).files;
    if (names.isEmpty()) throw RuntimeError(Error::FileNotFound);
    if (!folderExists(targetFolder)) throw RuntimeError(Error::PathNotFound);
    copyFiles(names, folder, targetFolder);
}

void moveAllFiles(const QString& folder, const QString& targetFolder) {
    for (const QString& name : entriesOf(folder).files) {
        const QString path = join(folder, name);
        const QString target = join(targetFolder, name);
        if (::rename(QFile::encodeName(path).constData(), QFile::encodeName(target).constData()) == 0) continue;
        if (errno != EXDEV) throwSystemError(errno, Error::FileNotFound);
        moveBetweenDisks(path, target);
    }
    syncFolder(targetFolder);
    syncFolder(folder);
}

bool areOnOneDisk(const QString& folder, const QString& other) {
    struct stat one {};
    struct stat two {};
    return ::stat(QFile::encodeName(folder).constData(), &one) == 0 &&
           ::stat(QFile::encodeName(other).constData(), &two) == 0 && one.st_dev == two.st_dev;
}

void makeFolder(const QString& path) {
    if (folderExists(path)) return;
    if (::mkdir(QFile::encodeName(path).constData(), 0777) != 0) throwSystemError(errno, Error::PathNotFound);
    syncFolder(parentOf(path));
}

void copyFolder(const QString& source, const QString& target) {
    // A closing separator names what lies in the folder, not the folder.
    if (source.endsWith(separator())) throw RuntimeError(Error::PathNotFound);
    // Listed before the target is made, so that a folder copied into itself comes to an end.
    const FolderEntries entries = entriesOf(source);
    makeFolder(target);
    copyFiles(entries.files, source, target);
    for (const QString& name : entries.folders)
        copyFolder(join(source, name), join(target, name));
}

}  // namespace platform::files
