#include "platform/print/printer.h"

#include <QStringList>
#include <algorithm>

#include "platform/print/print_device.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr double twipsPerPoint = 20;
constexpr double characterWidth = 0.6;
constexpr double lineSpacing = 1.1328125;
constexpr double usualSize = 10;

QStringList linesOf(QString text) {
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    return text.split(u'\n');
}

bool isBlank(const PrintedPage& page) {
    return std::ranges::all_of(page, [](const PrintedLine& line) { return line.text.trimmed().isEmpty(); });
}

}  // namespace

Printer::Printer(PrintDevice& device) : device_(device), area_(device.page()) {
    style_.font = u"Courier New"_s;
    style_.size = usualSize;
}

double Printer::textWidth(const QString& text) const {
    qsizetype longest = 0;
    const QStringList lines = linesOf(text);
    for (const QString& line : lines)
        longest = std::max(longest, line.toUcs4().size());
    return static_cast<double>(longest) * characterWidth * style_.size * twipsPerPoint;
}

double Printer::lineHeight() const {
    return lineSpacing * style_.size * twipsPerPoint;
}

void Printer::goToTop() {
    x_ = 0;
    y_ = 0;
}

void Printer::print(const QString& text) {
    const QStringList lines = linesOf(text);
    for (const QString& line : lines)
        printLine(line);
}

void Printer::printLine(const QString& text) {
    if (job_.empty()) job_.emplace_back();
    if (y_ + lineHeight() > area_.scaleHeight && !job_.back().empty()) newPage();
    PrintedLine line = style_;
    line.x = x_;
    line.y = y_;
    line.text = text;
    job_.back().push_back(line);
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
    if (!job.empty() && !(job.size() == 1 && job.front().empty())) device_.send(job);
}

}  // namespace platform
