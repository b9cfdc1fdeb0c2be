// Attaching a file of 500 MB against cp of the same file, and the memory that it takes beyond what was in use before.
// cp doesn't wait for the disk. Attaching does, but only when the description has been typed.

#include <sys/resource.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "attachments/attachment_store.h"
#include "data/connection.h"
#include "data/template.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int megabytes = 500;
constexpr int rounds = 3;

void makeFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) std::exit(1);
    for (int i = 0; i < megabytes; ++i)
        file.write(QByteArray(1 << 20, static_cast<char>('a' + i % 26)));
}

long peakKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

template <class Work>
qint64 milliseconds(Work work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return timer.elapsed();
}

}  // namespace

int main() {
    const QTemporaryDir folder(QDir::currentPath() + u"/attach_bench"_s);
    const QString source = folder.filePath(u"big.bin"_s);
    makeFile(source);
    data::createTemplate(folder.filePath(u"FamilyInfo.mdb"_s));
    data::Connection connection;
    connection.open(folder.filePath(u"FamilyInfo.mdb"_s));
    attachments::AttachmentStore store(connection, folder.path(), u"Hom_1_1"_s);

    qint64 cp = 1 << 30;
    qint64 synced = 1 << 30;
    qint64 attach = 1 << 30;
    qint64 row = 1 << 30;
    qint64 both = 1 << 30;
    long extra = 0;
    const QString copied = folder.filePath(u"copy.bin"_s);
    for (int round = 0; round < rounds; ++round) {
        cp = std::min(cp, milliseconds([&] { QProcess::execute(u"cp"_s, {source, copied}); }));
        synced = std::min(synced, cp + milliseconds([&] { QProcess::execute(u"sync"_s, {copied}); }));
        QFile::remove(copied);
        const long before = peakKilobytes();
        attachments::Attachment stored;
        const qint64 copying = milliseconds([&] { stored = store.storeFile(source); });
        const qint64 keeping = milliseconds([&] { store.addRow(stored); });
        attach = std::min(attach, copying);
        row = std::min(row, keeping);
        both = std::min(both, copying + keeping);
        extra = std::max(extra, peakKilobytes() - before);
        store.remove(stored.fileName);
    }
    const auto line = [](const char* what, qint64 ours, const char* than, qint64 theirs) {
        std::printf("%-42s %6lld ms  (%.2f times %s)\n", what, static_cast<long long>(ours),
                    static_cast<double>(ours) / static_cast<double>(theirs), than);
    };
    line("cp", cp, "itself", cp);
    line("attach until the description is asked", attach, "cp", cp);
    line("cp and sync", synced, "cp", cp);
    line("attach with its row, without any typing", both, "cp and sync", synced);
    std::printf("%-42s %6lld ms\n", "of it the wait for the disk, and the row", static_cast<long long>(row));
    std::printf("%-42s %6.1f MB (limit 8)\n", "memory, extra", static_cast<double>(extra) / 1024);
    const bool within = static_cast<double>(attach) <= 1.2 * static_cast<double>(cp) && extra < 8 * 1024;
    return within ? 0 : 1;
}
