#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "output/contents.h"
#include "output/listing.h"
#include "platform/print/print_job.h"

namespace platform {
class Printer;
}

namespace output {

/// Puts documents and pages of listings together into the numbered pages of one book. No more than a page and a
/// document are held.
///
/// Each page has a heading above, within the empty lines with which a document begins, and its number at the foot. A
/// document goes on where the one before it ended, unless it fits whole on a page and not on the rest of this one.
class BookPages {
public:
    using Take = std::function<void(const platform::PrintedPage& page)>;

    /// `take` gets each page that is full, from number 1 on; without it they are only counted.
    explicit BookPages(const platform::PageArea& sheet, Take take = {}) : sheet_(sheet), take_(std::move(take)) {}

    /// What comes next begins a page, under that heading. Gives the number of the page.
    int begin(const QString& heading);
    void addDocument(const QString& document);
    void addContents(const std::vector<PageLine>& lines);
    /// `title` and `columns` are the heads of the listing.
    void addListing(const QString& title, const QString& columns, const ListingPages::Page& lines);
    /// A page of its own kind, without heading and number.
    void addPage(const std::function<void(platform::Printer& printer)>& print);
    /// Hands on the last page.
    void finish();

    /// Pages that are handed on.
    [[nodiscard]] int count() const { return count_; }

private:
    void addLine(PageLine line);
    void goToNextPage();
    void printLines(platform::Printer& printer) const;
    void handOn(const std::function<void(platform::Printer& printer)>& print);
    void handOnNumbered(const std::function<void(platform::Printer& printer)>& print);

    platform::PageArea sheet_;
    Take take_;
    QString heading_;
    /// Of documents, on the page that isn't full yet.
    std::vector<PageLine> lines_;
    int count_ = 0;
};

}  // namespace output
