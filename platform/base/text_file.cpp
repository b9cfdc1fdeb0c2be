#include <QFile>

#include "platform/base/file_replacement.h"
#include "platform/base/files.h"
#include "platform/base/runtime_error.h"
#include "platform/base/windows1252.h"

namespace platform::files {

QStringList readLines(const QString& path) {
    if (!fileExists(path)) throw RuntimeError(Error::FileNotFound);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw RuntimeError(Error::PermissionDenied);
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) throw RuntimeError(Error::DeviceFailure);

    QStringList lines;
    for (qsizetype begin = 0; begin < bytes.size();) {
        const qsizetype lineFeed = bytes.indexOf('\n', begin);
        qsizetype end = lineFeed < 0 ? bytes.size() : lineFeed;
        const qsizetype next = end + 1;
        if (lineFeed > begin && bytes[lineFeed - 1] == '\r') --end;
        lines.append(fromWindows1252(bytes.sliced(begin, end - begin)));
        begin = next;
    }
    return lines;
}

void writeTextFile(const QString& path, const QString& text) {
    if (path.isEmpty()) throw RuntimeError(Error::InvalidCall);
    const QByteArray bytes = toWindows1252(text, OutsideCodePage::Refuse);
    FileReplacement file(path);
    file.keepMode();
    file.write(bytes);
    file.place();
    settleFolder(file.folder());
}

}  // namespace platform::files
