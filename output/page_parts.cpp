#include "output/page_parts.h"

#include "platform/print/printer.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

// In twips from the top of the sheet.
constexpr double titleDown = 1440;
constexpr double pageNumberDown = 14400;
constexpr double fontSize = 10;

}  // namespace

void useDocumentFont(platform::Printer& printer) {
    printer.setFontName(u"Courier New"_s);
    printer.setFontBold(true);
    printer.setFontSize(fontSize);
}

void printListingHeadings(platform::Printer& printer, const QString& title, const QString& heading) {
    printer.setFontUnderline(true);
    printer.setCurrentX(printer.width() / 2 - printer.textWidth(title) / 2);
    printer.setCurrentY(titleDown);
    printer.print(title);
    printer.print();
    printer.print();
    printer.print();
    printer.print(heading);
    printer.setFontUnderline(false);
    printer.print();
}

void printLine(platform::Printer& printer, const ListingLine& line) {
    if (line.cells.empty()) return printer.print(line.text);
    std::vector<platform::PlacedText> texts;
    for (const auto& [position, text] : line.cells)
        texts.push_back({static_cast<double>(position) * printer.positionWidth(), text});
    printer.printBeside(texts);
}

void printListingLines(platform::Printer& printer, const ListingPages::Page& page) {
    for (const ListingLine& line : page)
        printLine(printer, line);
    // The last line has its line end too.
    printer.print();
}

void printPageNumber(platform::Printer& printer, int number) {
    printer.setCurrentX(printer.width() / 2);
    printer.setCurrentY(pageNumberDown);
    printer.print(u"-%1-"_s.arg(number));
}

}  // namespace output
