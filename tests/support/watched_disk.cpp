#include "tests/support/watched_disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {

std::mutex guard;
QStringList seen;
bool watching = false;
int operationsToLive = -1;
int flushesToFailure = -1;
bool refusing = false;

void note(const QString& operation) {
    const std::lock_guard lock(guard);
    if (!watching) return;
    if (operationsToLive >= 0 && seen.size() >= operationsToLive) _exit(0);
    seen << operation;
}

/// The name under which an open file is known.
QString nameOf(int descriptor) {
    return QFile::symLinkTarget(u"/proc/self/fd/%1"_s.arg(descriptor));
}

void noteWrite(int descriptor) {
    if (watching) note(u"write "_s + nameOf(descriptor));
}

void noteFlush(int descriptor) {
    if (watching) note(u"flush "_s + nameOf(descriptor));
}

bool flushFails() {
    const std::lock_guard lock(guard);
    if (flushesToFailure < 0 || flushesToFailure-- > 0) return false;
    errno = EIO;
    return true;
}

bool removalFails() {
    if (refusing) errno = EBUSY;
    return refusing;
}

void noteRename(const char* from, const char* to) {
    if (watching) note(u"rename %1 %2"_s.arg(QFile::decodeName(from), QFile::decodeName(to)));
}

}  // namespace

extern "C" {

ssize_t write(int descriptor, const void* bytes, std::size_t count) {
    noteWrite(descriptor);
    return ::syscall(SYS_write, descriptor, bytes, count);
}

ssize_t pwrite(int descriptor, const void* bytes, std::size_t count, off_t at) {
    noteWrite(descriptor);
    return ::syscall(SYS_pwrite64, descriptor, bytes, count, at);
}

ssize_t pwrite64(int descriptor, const void* bytes, std::size_t count, off64_t at) {
    return pwrite(descriptor, bytes, count, at);
}

ssize_t copy_file_range(int from, off64_t* fromAt, int to, off64_t* toAt, std::size_t count, unsigned flags) {
    noteWrite(to);
    return ::syscall(SYS_copy_file_range, from, fromAt, to, toAt, count, flags);
}

int fsync(int descriptor) {
    noteFlush(descriptor);
    return flushFails() ? -1 : static_cast<int>(::syscall(SYS_fsync, descriptor));
}

int fdatasync(int descriptor) {
    noteFlush(descriptor);
    return flushFails() ? -1 : static_cast<int>(::syscall(SYS_fdatasync, descriptor));
}

int rename(const char* from, const char* to) noexcept {
    noteRename(from, to);
    return static_cast<int>(::syscall(SYS_rename, from, to));
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
    noteRename(from, to);
    return static_cast<int>(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

int mkdir(const char* name, mode_t mode) noexcept {
    if (watching) note(u"make "_s + QFile::decodeName(name));
    return static_cast<int>(::syscall(SYS_mkdir, name, mode));
}

int rmdir(const char* name) noexcept {
    if (watching) note(u"remove "_s + QFile::decodeName(name));
    return removalFails() ? -1 : static_cast<int>(::syscall(SYS_rmdir, name));
}

int unlink(const char* name) noexcept {
    if (watching) note(u"remove "_s + QFile::decodeName(name));
    return removalFails() ? -1 : static_cast<int>(::syscall(SYS_unlink, name));
}

}  // extern "C"

namespace support {

WatchedDisk::WatchedDisk() {
    const std::lock_guard lock(guard);
    seen.clear();
    watching = true;
}

WatchedDisk::~WatchedDisk() {
    const std::lock_guard lock(guard);
    watching = false;
    flushesToFailure = -1;
    refusing = false;
}

QStringList WatchedDisk::operations() const {
    const std::lock_guard lock(guard);
    return seen;
}

void WatchedDisk::failFlushAfter(int flushes) {
    const std::lock_guard lock(guard);
    flushesToFailure = flushes;
}

void WatchedDisk::refuseRemovals() {
    const std::lock_guard lock(guard);
    refusing = true;
}

void WatchedDisk::dieAfter(int operations) {
    operationsToLive = operations;
}

qsizetype WatchedDisk::last(const QString& operation, qsizetype end) const {
    const QStringList all = operations();
    return end == 0 ? -1 : all.lastIndexOf(operation, end < 0 ? -1 : end - 1);
}

}  // namespace support
