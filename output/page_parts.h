#pragma once

#include <QString>

#include "output/listing.h"

namespace platform {
class Printer;
}

namespace output {

// The parts of a page of a listing, at their places on the page that is begun.

/// Sets the font of all documents and listings.
void useDocumentFont(platform::Printer& printer);
/// The title, centred, and under it the heading over the columns.
void printListingHeadings(platform::Printer& printer, const QString& title, const QString& heading);
/// A line where the last one ended, or its cells, each at its position.
void printLine(platform::Printer& printer, const ListingLine& line);
/// The lines below them.
void printListingLines(platform::Printer& printer, const ListingPages::Page& page);
/// "-7-" at the foot.
void printPageNumber(platform::Printer& printer, int number);

}  // namespace output
