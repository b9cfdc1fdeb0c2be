#include "screens/cover_page_screen.h"

#include "output/print_failure.h"
#include "output/printable_screen.h"
#include "platform/forms/desktop.h"
#include "platform/forms/text_control.h"
#include "platform/print/device_in_use.h"
#include "platform/print/printer.h"
#include "screens/cover_page_print.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace screens {

void CoverPageScreen::ShowMe() {
    if (!rows().isOpen()) {
        setCaption(definition().title);
        openRows(definition().query);
        bindBoxes();
        if (rows().eof()) {
            setButtons(false);
            desktop().notice(u"No cover page information was found."_s, u"No Cover Page Info"_s);
            cmdAdd_Click();
        } else {
            rows().moveFirst();
        }
    }
    show();
}

void CoverPageScreen::setButtons(bool browsing) {
    RecordScreen::setButtons(browsing);
    bChange = false;
}

void CoverPageScreen::cmdClose_Click() {
    unload();
}

void CoverPageScreen::printRecord() {
    output::attemptPrint(desktop(), u"Print Error"_s, [this] {
        const CoverPage page{.heading1 = boxes().text("Heading1"_L1).text(),
                             .subHeading1 = boxes().text("SubHeading1"_L1).text(),
                             .heading2 = boxes().text("Heading2"_L1).text(),
                             .subHeading2 = boxes().text("SubHeading2"_L1).text(),
                             .date = boxes().text("Date"_L1).text()};
        platform::Printer printer(platform::printDevice(), output::jobTitle(printable()));
        printCoverPage(printer, page, session().definition);
        printer.endDoc();
    });
}

}  // namespace screens
