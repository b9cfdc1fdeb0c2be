#pragma once

#include <QDate>
#include <QString>
#include <vector>

#include "output/listing.h"

namespace output {

/// A heading of a book and the page on which what stands under it begins.
struct BookEntry {
    int level = 0;  ///< it belongs to the last one before it with a lower level
    QString title{};
    int page = 1;
};

/// A line of a book's page.
struct PageLine {
    ListingLine line;
    bool leads = false;  ///< to what stands below it: it is nowhere the last line of a page
};

/// The table of contents, beginning like the documents of records: six empty lines, the book's title with the day, then
/// a line for each entry with the number of its page at the end. How many lines it has depends on the entries alone,
/// not on their pages, and so does which of them lead.
[[nodiscard]] std::vector<PageLine> contentsLines(const QString& title, const std::vector<BookEntry>& entries,
                                                  const QDate& today);

}  // namespace output
