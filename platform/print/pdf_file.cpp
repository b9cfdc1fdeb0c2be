#include "platform/print/pdf_file.h"

#include <QLocale>
#include <QPageLayout>

#include "platform/base/files.h"
#include "platform/base/runtime_error.h"
#include "platform/base/unfinished.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int resolution = 1200;
/// Points that a household printer can't reach at each edge.
constexpr double edge = 18;

QPageLayout usualSheet() {
    const QLocale locale = QLocale::system();
    const bool isLetter = locale.language() == QLocale::C || locale.measurementSystem() == QLocale::ImperialUSSystem;
    return {QPageSize(isLetter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
            QMarginsF(edge, edge, edge, edge)};
}

const QString& prepared(const QString& path) {
    if (path.isEmpty()) throw RuntimeError(Error::InvalidCall);
    files::discardUnfinished(files::folderOf(path));
    return path;
}

/// Sets a writer up before the first page.
QPdfWriter& setUp(QPdfWriter& writer, const QString& title) {
    writer.setResolution(resolution);
    writer.setTitle(title);
    writer.setPageLayout(usualSheet());
    return writer;
}

QFile& opened(QFile& file, int descriptor) {
    if (!file.open(descriptor, QIODevice::WriteOnly)) throw RuntimeError(Error::DiskFull);
    return file;
}

}  // namespace

PdfFile::PdfFile(const QString& path, const QString& title)
    : file_(prepared(path)), writer_(&opened(out_, file_.descriptor())), painter_(setUp(writer_, title)) {
    file_.keepMode();
}

PageArea PdfFile::page() {
    return areaOf(usualSheet());
}

void PdfFile::add(const PrintedPage& page) {
    painter_.add(page);
    checkWritten();
}

void PdfFile::checkWritten() const {
    if (out_.error() != QFileDevice::NoError) throw RuntimeError(Error::DiskFull);
}

void PdfFile::end() {
    painter_.end();
    out_.flush();
    checkWritten();
    if (!outline_.empty()) appendOutline(file_, outline_);
    file_.place();
    files::syncFolder(file_.folder());
}

}  // namespace platform
