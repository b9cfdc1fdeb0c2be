#include "output/listing_print.h"

#include "output/print_failure.h"
#include "platform/forms/desktop.h"
#include "platform/print/device_in_use.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {
// In twips from the top of the sheet.
constexpr double headingDown = 1440;
constexpr double pageNumberDown = 14400;
constexpr double fontSize = 10;
}  // namespace

void ListingPrint::printPage(const ListingPages::Page& page) {
    printHeadings();
    if (printer_) {
        for (const ListingLine& line : page)
            printLine(line);
        // The last line has its line end too.
        printer_->print();
        printPageNumber();
    }
    ++page_;
}

void ListingPrint::printLine(const ListingLine& line) {
    if (line.cells.empty()) return printer_->print(line.text);
    std::vector<platform::PlacedText> texts;
    for (const auto& [position, text] : line.cells)
        texts.push_back({static_cast<double>(position) * printer_->positionWidth(), text});
    printer_->printBeside(texts);
}

void ListingPrint::end() {
    attemptPrint(desktop_, platform::Dialogs::programTitle(), [this] {
        if (printer_) printer_->endDoc();
    });
}

void ListingPrint::printHeadings() {
    attemptPrint(desktop_, u"PrintHeadings Error"_s, [this] {
        if (!printer_) printer_.emplace(platform::printDevice(), title_);
        printer_->setFontName(u"Courier New"_s);
        printer_->setFontBold(true);
        printer_->setFontSize(fontSize);
        if (page_ > 1) printer_->newPage();
        printer_->setFontUnderline(true);
        printer_->setCurrentX(printer_->width() / 2 - printer_->textWidth(title_) / 2);
        printer_->setCurrentY(headingDown);
        printer_->print(title_);
        printer_->print();
        printer_->print();
        printer_->print();
        printer_->print(heading_);
        printer_->setFontUnderline(false);
        printer_->print();
    });
}

void ListingPrint::printPageNumber() {
    desktop_.attempt(u"PrintPageNumber Error"_s, [this] {
        printer_->setCurrentX(printer_->width() / 2);
        printer_->setCurrentY(pageNumberDown);
        printer_->print(u"-%1-"_s.arg(page_));
    });
}

}  // namespace output
