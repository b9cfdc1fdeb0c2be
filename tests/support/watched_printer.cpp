#include "tests/support/watched_printer.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QPdfWriter>
#include <utility>

#include "platform/base/runtime_error.h"
#include "platform/print/job_painter.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

constexpr int resolution = 1200;
/// Points that a household printer can't reach at each edge.
constexpr double usualMargin = 18;

/// Letter, or what KINBOOK_DRIVE_SHEET asks for: "A4 36" for A4 and a margin of 36 points.
QPageLayout sheetLayout() {
    const QByteArrayList words = qgetenv("KINBOOK_DRIVE_SHEET").split(' ');
    const auto size = words[0] == "A4" ? QPageSize::A4 : QPageSize::Letter;
    const double margin = words.size() > 1 ? words[1].toDouble() : usualMargin;
    return {QPageSize(size), QPageLayout::Portrait, QMarginsF(margin, margin, margin, margin)};
}

QJsonObject described(const platform::PrintedLine& line) {
    return {
        {u"x"_s, line.x},       {u"y"_s, line.y},           {u"text"_s, line.text}, {u"font"_s, line.font},
        {u"bold"_s, line.bold}, {u"italic"_s, line.italic}, {u"size"_s, line.size}, {u"underline"_s, line.underline}};
}

QJsonArray described(const platform::PrintJob& job) {
    QJsonArray pages;
    for (const platform::PrintedPage& page : job) {
        QJsonArray lines;
        for (const platform::PrintedLine& line : page)
            lines.append(described(line));
        pages.append(lines);
    }
    return pages;
}

}  // namespace

void WatchedPrinter::use(const QString& file) {
    file_ = file == "none"_L1 ? QString() : file;
    sent_ = 0;
}

QJsonArray WatchedPrinter::takeJobs() {
    QJsonArray jobs;
    for (const platform::PrintJob& job : std::exchange(jobs_, {}))
        jobs.append(described(job));
    return jobs;
}

platform::PageArea WatchedPrinter::page() {
    if (file_.isEmpty()) throw platform::RuntimeError(platform::Error::NoPrinter);
    const QRectF sheet = sheetLayout().fullRect(QPageLayout::Point);
    const QRectF printable = sheetLayout().paintRect(QPageLayout::Point);
    constexpr double twips = 20;
    return {sheet.width() * twips, sheet.height() * twips, printable.width() * twips, printable.height() * twips};
}

QString WatchedPrinter::nextFile() {
    if (++sent_ == 1) return file_;
    const QFileInfo first(file_);
    return u"%1/%2-%3.pdf"_s.arg(first.path(), first.completeBaseName()).arg(sent_);
}

void WatchedPrinter::send(const platform::PrintJob& job, const QString& title) {
    if (file_.isEmpty()) throw platform::RuntimeError(platform::Error::NoPrinter);
    QPdfWriter writer(nextFile());
    writer.setResolution(resolution);
    writer.setTitle(title);
    writer.setPageLayout(sheetLayout());
    platform::paintJob(writer, job);
    jobs_.push_back(job);
}

}  // namespace support
