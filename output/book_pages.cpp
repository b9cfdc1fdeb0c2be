#include "output/book_pages.h"

#include <algorithm>

#include "output/page_parts.h"
#include "platform/base/text_positions.h"
#include "platform/print/print_device.h"
#include "platform/print/print_metrics.h"
#include "platform/print/printer.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr double lineHeight = platform::lineHeight(10);
/// Lines of a page, from its top to above its number.
constexpr std::size_t linesOfPage = 62;
/// At the top of each page, as a document begins; the heading stands in the midst of them.
constexpr std::size_t emptyLines = 6;
constexpr double headingDown = 3 * lineHeight;
constexpr qsizetype headingIndent = 6;
constexpr qsizetype headingWidth = 80;

/// Takes the pages of a printer one by one.
class PageByPage : public platform::PrintDevice {
public:
    PageByPage(const platform::PageArea& sheet, const BookPages::Take& take) : sheet_(sheet), take_(take) {}

    [[nodiscard]] platform::PageArea page() override { return sheet_; }
    void send(const platform::PrintJob& job, const QString& /*title*/) override {
        for (const platform::PrintedPage& page : job)
            take_(page);
    }

private:
    const platform::PageArea& sheet_;
    const BookPages::Take& take_;
};

QStringList withoutEndingBlanks(QStringList lines) {
    while (!lines.isEmpty() && lines.last().trimmed().isEmpty())
        lines.removeLast();
    return lines;
}

void printHeading(platform::Printer& printer, const QString& heading) {
    printer.setCurrentX(headingIndent * printer.positionWidth());
    printer.setCurrentY(headingDown);
    printer.print(platform::fitting(heading, headingWidth).toString());
}

}  // namespace

int BookPages::begin(const QString& heading) {
    finish();
    heading_ = heading;
    return count_ + 1;
}

void BookPages::addDocument(const QString& document) {
    const QStringList lines = withoutEndingBlanks(platform::printedLines(document));
    if (lines_.size() + static_cast<std::size_t>(lines.size()) > linesOfPage) finish();
    for (const QString& line : lines)
        addLine({.line = {.text = line}});
}

void BookPages::addContents(const std::vector<PageLine>& lines) {
    for (const PageLine& line : lines)
        addLine(line);
}

void BookPages::addLine(PageLine line) {
    if (lines_.size() == linesOfPage) goToNextPage();
    lines_.push_back(std::move(line));
}

void BookPages::goToNextPage() {
    std::vector<PageLine> next(emptyLines);
    const auto leading = std::ranges::find(lines_.rbegin(), lines_.rend(), false, &PageLine::leads).base();
    std::move(leading, lines_.end(), std::back_inserter(next));
    lines_.erase(leading, lines_.end());
    finish();
    lines_ = std::move(next);
}

void BookPages::addListing(const QString& title, const QString& columns, const ListingPages::Page& lines) {
    finish();
    handOnNumbered([&](platform::Printer& printer) {
        printListingHeadings(printer, title, columns);
        printListingLines(printer, lines);
    });
}

void BookPages::addPage(const std::function<void(platform::Printer& printer)>& print) {
    finish();
    handOn(print);
}

void BookPages::handOn(const std::function<void(platform::Printer& printer)>& print) {
    if (take_) {
        PageByPage device(sheet_, take_);
        platform::Printer printer(device, {});
        print(printer);
        printer.endDoc();
    }
    ++count_;
}

void BookPages::finish() {
    if (!lines_.empty()) handOnNumbered([this](platform::Printer& printer) { printLines(printer); });
    lines_.clear();
}

void BookPages::printLines(platform::Printer& printer) const {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const ListingLine& line = lines_[i].line;
        if (line.text.trimmed().isEmpty()) continue;
        printer.setCurrentY(static_cast<double>(i) * lineHeight);
        printLine(printer, line);
    }
}

void BookPages::handOnNumbered(const std::function<void(platform::Printer& printer)>& print) {
    handOn([&](platform::Printer& printer) {
        useDocumentFont(printer);
        printHeading(printer, heading_);
        print(printer);
        printPageNumber(printer, count_ + 1);
    });
}

}  // namespace output
