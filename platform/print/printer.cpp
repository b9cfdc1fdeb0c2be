#include "platform/print/printer.h"

#include <algorithm>
#include <utility>

#include "platform/base/text_positions.h"
#include "platform/print/page_scale.h"
#include "platform/print/print_device.h"
#include "platform/print/print_metrics.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr double usualSize = 10;

bool isBlank(const PrintedPage& page) {
    return std::ranges::all_of(page, [](const PrintedLine& line) { return line.text.trimmed().isEmpty(); });
}

}  // namespace

Printer::Printer(PrintDevice& device, QString title) : device_(device), title_(std::move(title)), area_(device.page()) {
    const double scale = pageScale(area_);
    for (double* length : {&area_.width, &area_.height, &area_.scaleWidth, &area_.scaleHeight})
        *length /= scale;
    style_.font = u"Courier New"_s;
    style_.size = usualSize;
}

double Printer::positionWidth() const {
    return platform::positionWidth(style_.size);
}

double Printer::textWidth(const QString& text) const {
    qsizetype longest = 0;
    const QStringList lines = printedLines(text);
    for (const QString& line : lines)
        longest = std::max(longest, positionsOf(line));
    return static_cast<double>(longest) * positionWidth();
}

double Printer::lineHeight() const {
    return platform::lineHeight(style_.size);
}

void Printer::goToTop() {
    x_ = 0;
    y_ = 0;
}

void Printer::print(const QString& text) {
    const QStringList lines = printedLines(text);
    for (const QString& line : lines)
        printBeside({{x_, line}});
}

void Printer::printBeside(const std::vector<PlacedText>& texts) {
    if (job_.empty()) job_.emplace_back();
    if (y_ + lineHeight() > area_.scaleHeight && !job_.back().empty()) newPage();
    for (const auto& [x, text] : texts) {
        PrintedLine line = style_;
        line.x = x;
        line.y = y_;
        line.text = text;
        job_.back().push_back(line);
    }
    x_ = 0;
    y_ += lineHeight();
}

void Printer::newPage() {
    if (job_.empty()) job_.emplace_back();
    job_.emplace_back();
    goToTop();
}

void Printer::endDoc() {
    while (job_.size() > 1 && isBlank(job_.back()))
        job_.pop_back();
    PrintJob job;
    job.swap(job_);
    goToTop();
    if (!job.empty() && !(job.size() == 1 && job.front().empty())) device_.send(job, title_);
}

}  // namespace platform
