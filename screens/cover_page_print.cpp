#include "screens/cover_page_print.h"

#include "platform/print/printer.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

constexpr double headingDown = 1440;
constexpr double companyDown = 13400;

void skipLines(platform::Printer& printer, int count) {
    for (int i = 0; i < count; ++i)
        printer.print();
}

void printCentred(platform::Printer& printer, const QString& text) {
    printer.setCurrentX(printer.scaleWidth() / 2 - printer.textWidth(text) / 2);
    printer.print(text);
}

void printCompany(platform::Printer& printer, const session::Definition& company) {
    printer.setFontItalic(true);
    printer.setFontSize(10);
    printer.setCurrentY(companyDown);
    printCentred(printer, company.gsCompany);
    printCentred(printer, company.gsAddress);
    printCentred(printer, company.gsCity + u", "_s + company.gsState + u" "_s + company.gsZip);
    printCentred(printer, company.gsPhone);
    skipLines(printer, 2);
}

}  // namespace

void printCoverPage(platform::Printer& printer, const CoverPage& cover, const session::Definition& company) {
    printer.setFontName(u"Courier New"_s);
    printer.setFontBold(true);
    printer.setFontItalic(false);
    printer.setFontSize(18);
    skipLines(printer, 10);
    printer.setCurrentY(headingDown);
    printCentred(printer, cover.heading1);
    skipLines(printer, 3);
    printer.setFontSize(14);
    printCentred(printer, cover.subHeading1);
    printer.setFontSize(12);
    skipLines(printer, 10);
    printCentred(printer, cover.date);
    skipLines(printer, 10);
    printer.setFontSize(14);
    printCentred(printer, cover.heading2);
    printer.setFontSize(12);
    skipLines(printer, 2);
    printCentred(printer, cover.subHeading2);
    printCompany(printer, company);
}

}  // namespace screens
