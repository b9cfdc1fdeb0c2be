#include "hostile_disk.h"

#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t nobody = 65534;

void limitFiles(rlim_t bytes) {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(bytes, limit.rlim_max);
    setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace

SmallDisk::SmallDisk(int kilobytes) {
    const QByteArray size = "size=" + QByteArray::number(kilobytes) + "k";
    isMounted_ = mount("none", folder_.path().toLocal8Bit().constData(), "tmpfs", 0, size.constData()) == 0;
    std::signal(SIGXFSZ, SIG_IGN);
}

SmallDisk::~SmallDisk() {
    makeRoom();
    if (isMounted_) umount2(folder_.path().toLocal8Bit().constData(), MNT_DETACH);
}

void SmallDisk::fill() {
    if (!isMounted_) return limitFiles(16384);
    QFile filler(folder() + u"/filler"_s);
    if (filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        while (filler.write(QByteArray(4096, 'x')) == 4096) {
        }
}

void SmallDisk::makeRoom() {
    if (isMounted_)
        QFile::remove(folder() + u"/filler"_s);
    else
        limitFiles(RLIM_INFINITY);
}

OrdinaryUser::OrdinaryUser(const QString& folder, const QString& file, bool folderOnly)
    : folder_(folder), wasRoot_(geteuid() == 0) {
    chmod(file.toLocal8Bit().constData(), folderOnly ? 0666 : 0444);
    chmod(folder.toLocal8Bit().constData(), folderOnly ? 0555 : 0777);
    if (wasRoot_ && seteuid(nobody) != 0) wasRoot_ = false;
}

OrdinaryUser::~OrdinaryUser() {
    if (wasRoot_ && seteuid(0) != 0) std::abort();
    chmod(folder_.toLocal8Bit().constData(), 0700);
}
