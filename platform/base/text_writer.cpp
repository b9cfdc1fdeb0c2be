#include "platform/base/text_writer.h"

#include "platform/base/files.h"
#include "platform/base/runtime_error.h"
#include "platform/base/unfinished.h"

using namespace Qt::StringLiterals;

namespace platform::files {

namespace {

const QString& prepared(const QString& path) {
    if (path.isEmpty()) throw RuntimeError(Error::InvalidCall);
    discardUnfinished(folderOf(path));
    return path;
}

}  // namespace

TextWriter::TextWriter(const QString& path) : file_(prepared(path)) {
    file_.keepMode();
}

void TextWriter::writeLine(const QString& text) {
    file_.write((text + u"\r\n"_s).toUtf8());
}

void TextWriter::close() {
    file_.place();
    syncFolder(file_.folder());
}

}  // namespace platform::files
