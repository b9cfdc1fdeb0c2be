#include "platform/print/job_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <algorithm>
#include <vector>

#include "platform/base/runtime_error.h"
#include "platform/base/text_positions.h"
#include "platform/print/page_scale.h"
#include "platform/print/print_metrics.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr double twipsPerInch = 1440;

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

/// What of a line is drawn as one string.
struct Run {
    enum class Kind { Latin, Other, Wide, Emoji, RightToLeft };
    Kind kind = Kind::Latin;
    qsizetype position = 0;
    qsizetype positions = 0;
    QString text{};
};

Run::Kind kindOf(QStringView grapheme, int positions) {
    if (isLatin(grapheme)) return Run::Kind::Latin;
    if (hasRightToLeft(grapheme)) return Run::Kind::RightToLeft;
    if (hasEmoji(grapheme)) return Run::Kind::Emoji;
    return positions > 1 ? Run::Kind::Wide : Run::Kind::Other;
}

/// A wide character is a run of its own; one from right to left takes along all behind it.
bool goesOn(const Run& run, Run::Kind kind) {
    if (run.kind == Run::Kind::RightToLeft) return true;
    return run.kind == kind && (kind == Run::Kind::Latin || kind == Run::Kind::Other);
}

std::vector<Run> runsOf(const QString& text) {
    if (isLatin(text)) return {{.positions = text.size(), .text = text}};
    std::vector<Run> runs;
    qsizetype position = 0;
    for (const Grapheme& grapheme : graphemesOf(text)) {
        const QStringView part = QStringView(text).sliced(grapheme.start, grapheme.length);
        const Run::Kind kind = kindOf(part, grapheme.positions);
        if (runs.empty() || !goesOn(runs.back(), kind)) runs.push_back({.kind = kind, .position = position});
        runs.back().positions += grapheme.positions;
        runs.back().text += part;
        position += grapheme.positions;
    }
    return runs;
}

Qt::LayoutDirection directionOf(const Run& run) {
    return run.kind == Run::Kind::RightToLeft ? Qt::RightToLeft : Qt::LeftToRight;
}

/// Paper in a file takes no characters of a font that is made of coloured pictures; it takes the pictures. `cell` is
/// what the run's positions cover.
void paintPicture(QPainter& painter, const QRectF& cell, const Run& run) {
    // Half the units of the page is 720 dots to the inch.
    constexpr double detail = 0.5;
    QImage picture((cell.size() * detail).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter drawing(&picture);
    drawing.setLayoutDirection(directionOf(run));
    const QString text = run.text.trimmed();
    QFont font = painter.font();
    font.setPixelSize(static_cast<int>(font.pixelSize() * detail));
    drawing.setFont(font);
    const QRectF whole(QPointF(0, 0), cell.size() * detail);
    constexpr int atLeft = Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter;
    const double natural = drawing.boundingRect(whole, atLeft, text).width();
    if (natural > whole.width()) drawing.scale(whole.width() / natural, 1);
    drawing.drawText(QRectF(0, 0, std::max(natural, whole.width()), whole.height()), atLeft, text);
    drawing.end();
    painter.drawImage(cell, picture);
}

/// `start` is at the baseline; `width` is what the run's positions take.
void paintText(QPainter& painter, const QPointF& start, double width, const Run& run) {
    // A letter that exists with its accent looks better than one upon which a font puts it.
    const QString text = run.text.normalized(QString::NormalizationForm_C).trimmed();
    painter.setLayoutDirection(directionOf(run));
    const double natural = QFontMetricsF(painter.font(), painter.device()).horizontalAdvance(text);
    const double narrowed = natural > width && width > 0 ? width / natural : 1;
    painter.save();
    painter.translate(start);
    painter.scale(narrowed, 1);
    painter.drawText(QPointF(0, 0), text);
    painter.restore();
}

void paintLine(QPainter& painter, const PrintedLine& line) {
    painter.setFont(fontOf(line));
    const double baseline = line.y + painter.fontMetrics().ascent();
    const double position = positionWidth(line.size);
    for (const Run& run : runsOf(line.text)) {
        const double x = line.x + static_cast<double>(run.position) * position;
        const double width = static_cast<double>(run.positions) * position;
        if (run.kind == Run::Kind::Latin) {
            painter.setLayoutDirection(Qt::LeftToRight);
            painter.drawText(QPointF(x, baseline), run.text);
        } else if (hasEmoji(run.text)) {
            paintPicture(painter, {x, line.y, width, lineHeight(line.size)}, run);
        } else {
            paintText(painter, {x, baseline}, width, run);
        }
    }
}

void paintPage(QPainter& painter, const PrintedPage& page) {
    for (const PrintedLine& line : page)
        paintLine(painter, line);
}

}  // namespace

PageArea areaOf(const QPageLayout& sheet) {
    const QRectF whole = sheet.fullRect(QPageLayout::Point);
    const QRectF printable = sheet.paintRect(QPageLayout::Point);
    return {.width = whole.width() * twipsPerPoint,
            .height = whole.height() * twipsPerPoint,
            .scaleWidth = printable.width() * twipsPerPoint,
            .scaleHeight = printable.height() * twipsPerPoint};
}

PageArea pageAreaOf(const QPagedPaintDevice& device) {
    return areaOf(device.pageLayout());
}

JobPainter::JobPainter(QPagedPaintDevice& device) : device_(device), painter_(std::make_unique<QPainter>()) {
    if (!painter_->begin(&device)) throw RuntimeError(Error::NoPrinter);
    const double scale = pageScale(pageAreaOf(device));
    painter_->scale(scale * device.logicalDpiX() / twipsPerInch, scale * device.logicalDpiY() / twipsPerInch);
}

JobPainter::~JobPainter() = default;

void JobPainter::add(const PrintedPage& page) {
    if (begun_ && !device_.newPage()) throw RuntimeError(Error::NoPrinter);
    begun_ = true;
    paintPage(*painter_, page);
}

void JobPainter::end() {
    if (!painter_->end()) throw RuntimeError(Error::NoPrinter);
}

void paintJob(QPagedPaintDevice& device, const PrintJob& job) {
    JobPainter painter(device);
    for (const PrintedPage& page : job)
        painter.add(page);
    painter.end();
}

}  // namespace platform
