#include "book/book_writer.h"

#include "output/book_pages.h"
#include "output/document.h"
#include "output/printable_screen.h"
#include "platform/forms/progress.h"

namespace book {

void BookWriter::heading(int level, const QString& title, const QString& above) {
    path_.resize(static_cast<std::size_t>(level));
    path_.push_back({title});
    above_ = above;
    isNew_ = true;
}

void BookWriter::beginPages() {
    if (!isNew_) return;
    isNew_ = false;
    const int page = pages_.begin(above_);
    for (std::size_t level = 0; level < path_.size(); ++level) {
        if (!path_[level].isNoted) entries_.push_back({static_cast<int>(level), path_[level].title, page});
        path_[level].isNoted = true;
    }
}

bool BookWriter::record(const output::PrintableScreen& screen) {
    beginPages();
    pages_.addDocument(output::pageDocument(screen, today_));
    return progress_.step();
}

void BookWriter::beginList(const output::PrintableGrid& head) {
    list_ = head;
    listPages_.emplace([this](const output::ListingPages::Page& page) {
        beginPages();
        pages_.addListing(output::listingTitle(list_, today_), output::listingHeading(list_.columns), page);
    });
}

bool BookWriter::row(const QStringList& cells) {
    listPages_->addRow(output::listingLines(list_.columns, cells));
    return progress_.step();
}

void BookWriter::endList() {
    listPages_->finish();
    listPages_.reset();
}

}  // namespace book
