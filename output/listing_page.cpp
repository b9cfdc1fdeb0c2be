#include "output/listing_page.h"

#include "output/print_failure.h"
#include "platform/forms/desktop.h"
#include "platform/print/printer.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {
constexpr double headingDown = 1440;
constexpr double pageNumberDown = 14400;
constexpr double fontSize = 10;
}  // namespace

void printHeadings(platform::Desktop& desktop, platform::Printer& printer, const QString& first, const QString& second,
                   int page) {
    attemptPrint(desktop, u"PrintHeadings Error"_s, [&] {
        printer.setFontName(u"Courier New"_s);
        printer.setFontBold(true);
        printer.setFontSize(fontSize);
        if (page > 1) printer.newPage();
        printer.setFontUnderline(true);
        printer.setCurrentX(printer.width() / 2 - printer.textWidth(first) / 2);
        printer.setCurrentY(headingDown);
        printer.print(first);
        printer.print();
        printer.print();
        printer.print();
        printer.print(second);
        printer.setFontUnderline(false);
        printer.print();
    });
}

void printPageNumber(platform::Desktop& desktop, platform::Printer& printer, int page) {
    desktop.attempt(u"PrintPageNumber Error"_s, [&] {
        printer.setCurrentX(printer.width() / 2);
        printer.setCurrentY(pageNumberDown);
        printer.print(u"-%1-"_s.arg(page));
    });
}

}  // namespace output
