#include "book/family_book.h"

#include "book/book_reader.h"
#include "book/book_writer.h"
#include "output/book_pages.h"
#include "platform/base/clock.h"
#include "platform/forms/progress.h"
#include "screens/cover_page_print.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace book {

namespace {
const QString contents = u"Contents"_s;
}

QString FamilyBook::title() const {
    return u"Family Book for "_s + selection_.name;
}

BookReader FamilyBook::reader() {
    return {session_.gConnection, selection_, chapters_, shown_};
}

bool FamilyBook::isEmpty() {
    return reader().count() == 0;
}

bool FamilyBook::layOut(const platform::PageArea& sheet, const output::BookPages::Take& take, const QString& doing) {
    // Both ways through the book must come by the same rows.
    const data::Connection::ReadHold hold(session_.gConnection);
    BookReader rows = reader();
    // The contents stand before what they tell of.
    output::BookPages counted(sheet);
    Entries entries;
    if (!write(rows, counted, u"Counting pages: record %1 of %2"_s, entries)) return false;

    output::BookPages pages(sheet, take);
    bookmarks_.clear();
    addCoverPages(rows, pages);
    addContents(pages, sheet, entries);
    return write(rows, pages, doing, entries);
}

bool FamilyBook::write(BookReader& reader, output::BookPages& pages, const QString& doing, Entries& entries) {
    platform::Progress progress(title(), doing, reader.count());
    BookWriter writer(pages, progress, platform::systemClock().today());
    if (!reader.read(writer)) return false;
    pages.finish();
    entries = writer.entries();
    return true;
}

void FamilyBook::addCoverPages(BookReader& reader, output::BookPages& pages) {
    for (const screens::CoverPage& cover : reader.coverPages()) {
        pages.addPage(
            [&](platform::Printer& printer) { screens::printCoverPage(printer, cover, session_.definition); });
    }
    if (pages.count() > 0) bookmarks_.push_back({0, u"Cover Page"_s, 1});
}

void FamilyBook::addContents(output::BookPages& pages, const platform::PageArea& sheet, Entries entries) {
    const QDate today = platform::systemClock().today();
    output::BookPages own(sheet);
    own.addContents(output::contentsLines(title(), entries, today));
    own.finish();
    bookmarks_.push_back({0, contents, pages.begin(contents)});
    const int before = pages.count() + own.count();
    for (output::BookEntry& entry : entries) {
        entry.page += before;
        bookmarks_.push_back({entry.level, entry.title, entry.page});
    }
    pages.addContents(output::contentsLines(title(), entries, today));
    pages.finish();
}

}  // namespace book
