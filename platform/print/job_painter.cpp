#include "platform/print/job_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int noPrinter = 482;
constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;

QFont fontOf(const PrintedLine& line) {
    QFont font;
    // The free face with the same widths stands in where the named one isn't installed.
    font.setFamilies({line.font, u"Liberation Mono"_s});
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(static_cast<int>(line.size * twipsPerPoint));
    font.setBold(line.bold);
    font.setItalic(line.italic);
    font.setUnderline(line.underline);
    return font;
}

void paintPage(QPainter& painter, const PrintedPage& page) {
    for (const PrintedLine& line : page) {
        painter.setFont(fontOf(line));
        const double baseline = line.y + painter.fontMetrics().ascent();
        painter.drawText(QPointF(line.x, baseline), line.text);
    }
}

}  // namespace

PageArea pageAreaOf(const QPagedPaintDevice& device) {
    const QPageLayout layout = device.pageLayout();
    const QRectF sheet = layout.fullRect(QPageLayout::Point);
    const QRectF printable = layout.paintRect(QPageLayout::Point);
    return {.width = sheet.width() * twipsPerPoint,
            .height = sheet.height() * twipsPerPoint,
            .scaleWidth = printable.width() * twipsPerPoint,
            .scaleHeight = printable.height() * twipsPerPoint};
}

void paintJob(QPagedPaintDevice& device, const PrintJob& job) {
    QPainter painter;
    if (!painter.begin(&device)) throw RuntimeError(noPrinter);
    painter.scale(device.logicalDpiX() / twipsPerInch, device.logicalDpiY() / twipsPerInch);
    for (std::size_t i = 0; i < job.size(); ++i) {
        if (i > 0 && !device.newPage()) throw RuntimeError(noPrinter);
        paintPage(painter, job[i]);
    }
    if (!painter.end()) throw RuntimeError(noPrinter);
}

}  // namespace platform
