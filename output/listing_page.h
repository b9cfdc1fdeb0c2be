#pragma once

#include <QString>

namespace platform {
class Desktop;
class Printer;
}  // namespace platform

namespace output {

/// Begins a page of a listing: a centred heading an inch down, then the line of column headings, both underlined.
/// Pages after the first begin on a new sheet. Failures are shown.
void printHeadings(platform::Desktop& desktop, platform::Printer& printer, const QString& first, const QString& second,
                   int page);

/// Puts "-page-" at the page's foot, ten inches down; to be called after the page's body. Failures are shown.
void printPageNumber(platform::Desktop& desktop, platform::Printer& printer, int page);

}  // namespace output
