#include "output/listing_print.h"

#include "output/page_parts.h"
#include "output/print_failure.h"
#include "platform/forms/desktop.h"
#include "platform/print/device_in_use.h"

using namespace Qt::StringLiterals;

namespace output {

void ListingPrint::printPage(const ListingPages::Page& page) {
    printHeadings();
    if (printer_) {
        printListingLines(*printer_, page);
        printPageNumber();
    }
    ++page_;
}

void ListingPrint::end() {
    attemptPrint(desktop_, platform::Dialogs::programTitle(), [this] {
        if (printer_) printer_->endDoc();
    });
}

void ListingPrint::printHeadings() {
    attemptPrint(desktop_, u"PrintHeadings Error"_s, [this] {
        if (!printer_) printer_.emplace(platform::printDevice(), title_);
        useDocumentFont(*printer_);
        if (page_ > 1) printer_->newPage();
        printListingHeadings(*printer_, title_, heading_);
    });
}

void ListingPrint::printPageNumber() {
    desktop_.attempt(u"PrintPageNumber Error"_s, [this] { output::printPageNumber(*printer_, page_); });
}

}  // namespace output
