#pragma once

#include <QString>
#include <optional>

#include "output/listing.h"
#include "platform/print/printer.h"

namespace platform {
class Desktop;
}

namespace output {

/// Prints the pages of a listing as one job, each under the same headings and with its number at the foot. Failures are
/// shown; without a printer that is once for each page.
class ListingPrint {
public:
    /// `title` is centred; `heading` stands over the columns.
    ListingPrint(platform::Desktop& desktop, QString title, QString heading)
        : desktop_(desktop), title_(std::move(title)), heading_(std::move(heading)) {}

    void printPage(const ListingPages::Page& page);
    /// Sends the job.
    void end();

private:
    void printHeadings();
    void printPageNumber();

    platform::Desktop& desktop_;
    QString title_;
    QString heading_;
    std::optional<platform::Printer> printer_;
    int page_ = 1;
};

}  // namespace output
