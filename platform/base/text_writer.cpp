#include "platform/base/text_writer.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <utility>

#include "platform/base/file_errors.h"
#include "platform/base/files.h"
#include "platform/base/runtime_error.h"
#include "platform/base/windows1252.h"

using namespace Qt::StringLiterals;

namespace platform::files {

TextWriter::TextWriter(const QString& path) {
    if (path.isEmpty()) throw RuntimeError(5);
    if (folderExists(path)) throw RuntimeError(70);
    if (fileExists(path) && isReadOnly(path)) throw RuntimeError(70);
    descriptor_ = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (descriptor_ < 0) throwSystemError(errno, 76);
}

TextWriter::~TextWriter() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

void TextWriter::writeLine(const QString& text) {
    const QByteArray bytes = toWindows1252(text + u"\r\n"_s, OutsideCodePage::Refuse);
    for (qsizetype done = 0; done < bytes.size();) {
        const ssize_t written =
            ::write(descriptor_, bytes.constData() + done, static_cast<std::size_t>(bytes.size() - done));
        if (written < 0 && errno != EINTR) throwSystemError(errno, 76);
        if (written > 0) done += written;
    }
}

void TextWriter::close() {
    const int flushed = ::fsync(descriptor_) == 0 ? 0 : errno;
    const int closed = ::close(std::exchange(descriptor_, -1)) == 0 ? 0 : errno;
    // A device that keeps nothing, such as a pipe, refuses the flush.
    if (flushed != 0 && flushed != EINVAL) throwSystemError(flushed, 76);
    if (closed != 0) throwSystemError(closed, 76);
}

}  // namespace platform::files
