// Backup and restore of 500 MB of attachments in 500 files against cp -r of the same, and the memory that they take
// beyond what was in use before. cp doesn't wait for the disk; both commands do before they tell of success, so they
// are held against cp and sync as well. A restore deletes as many old files first: its measure is rm, cp and sync.

#include <sys/resource.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "data/book_replacement.h"
#include "data/database_files.h"
#include "data/template.h"
#include "platform/base/files.h"
#include "platform/base/folder_replacement.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace {

constexpr int fileCount = 500;
constexpr int rounds = 5;

void makeFiles(const QString& folder) {
    QDir().mkpath(folder);
    for (int i = 0; i < fileCount; ++i) {
        QFile file(u"%1/FI_%2.bin"_s.arg(folder).arg(i));
        if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(1 << 20, static_cast<char>('a' + i % 26))) < 0)
            std::exit(1);
        file.close();
        files::setReadOnly(file.fileName());
    }
}

long peakKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// The best of some measurements, each of which starts with a disk that has nothing left to write.
struct Fastest {
    qint64 milliseconds = 1 << 30;

    template <class Work>
    void take(Work work) {
        ::sync();
        QElapsedTimer timer;
        timer.start();
        work();
        milliseconds = std::min(milliseconds, timer.elapsed());
    }
    [[nodiscard]] double times(const Fastest& other) const {
        return static_cast<double>(milliseconds) / static_cast<double>(other.milliseconds);
    }
};

/// The steps of the command, without its boxes.
void backUp(const QString& live, const QString& target) {
    const QString companion = data::companionFolder(target);
    files::copyFile(live + u"/FamilyInfo.mdb"_s, target);
    files::FolderReplacement folder(companion);
    files::copyFolder(live + u"/Attachments"_s, folder.path());
    folder.place();
}

void restore(const QString& source, const QString& live) {
    data::BookReplacement book(live + u"/FamilyInfo.mdb"_s, live + u"/Attachments"_s, {});
    book.replaceDatabase(source, data::companionFolder(source));
    book.replaceAttachments();
}

void copyAll(const QString& from, const QString& to) {
    QProcess::execute(u"cp"_s, {u"-r"_s, from, to});
}

}  // namespace

int main() {
    const QTemporaryDir folder(QDir::currentPath() + u"/backup_bench"_s);
    const QString live = folder.filePath(u"live"_s);
    const QString copy = folder.filePath(u"copy"_s);
    const QString backup = folder.filePath(u"FamilyInfoBackup.mdb"_s);
    makeFiles(live + u"/Attachments"_s);
    data::createTemplate(live + u"/FamilyInfo.mdb"_s);

    Fastest cp;
    Fastest synced;
    Fastest anew;
    Fastest backingUp;
    Fastest restoring;
    long extra = 0;
    for (int round = 0; round < rounds; ++round) {
        cp.take([&] { copyAll(live, copy); });
        files::deleteFolder(copy);
        synced.take([&] {
            copyAll(live, copy);
            ::sync();
        });
        anew.take([&] {
            QProcess::execute(u"rm"_s, {u"-rf"_s, copy});
            copyAll(live, copy);
            ::sync();
        });
        files::deleteFolder(copy);
        if (round > 0) files::deleteFolder(data::companionFolder(backup));
        const long before = peakKilobytes();
        backingUp.take([&] { backUp(live, backup); });
        restoring.take([&] { restore(backup, live); });
        extra = std::max(extra, peakKilobytes() - before);
    }
    const auto line = [&](const char* what, const Fastest& time) {
        std::printf("%-16s %5lld ms  %5.2f of cp -r  %5.2f of cp -r, sync  %5.2f of rm, cp -r, sync\n", what,
                    static_cast<long long>(time.milliseconds), time.times(cp), time.times(synced), time.times(anew));
    };
    line("cp -r", cp);
    line("cp -r, sync", synced);
    line("rm, cp -r, sync", anew);
    line("backup", backingUp);
    line("restore", restoring);
    std::printf("memory, extra %.1f MB (limit 16)\n", static_cast<double>(extra) / 1024);
    const bool within = backingUp.times(synced) <= 1.2 && restoring.times(anew) <= 1.2;
    return within && extra < 16 * 1024 ? 0 : 1;
}
