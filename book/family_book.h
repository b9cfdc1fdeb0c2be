#pragma once

#include <QString>
#include <functional>
#include <span>
#include <vector>

#include "book/chapter.h"
#include "output/contents.h"
#include "platform/print/pdf_outline.h"
#include "platform/print/print_job.h"
#include "session/selection.h"

namespace output {
class BookPages;
}

namespace session {
struct Session;
struct ShownRows;
}  // namespace session

namespace book {

class BookReader;

/// All that the windows show of the family, or of one member and what belongs to nobody in particular, as one book: the
/// cover page, the contents, the records by category and member, the lists, the names of the attached files.
class FamilyBook {
public:
    /// `shown`, which is kept, tells to which records files are attached.
    FamilyBook(session::Session& session, session::Selection selection, std::vector<Chapter> chapters,
               std::span<const session::ShownRows> shown)
        : session_(session), selection_(std::move(selection)), chapters_(std::move(chapters)), shown_(shown) {}

    [[nodiscard]] QString title() const;
    /// Nothing stands in the book but perhaps a cover page.
    [[nodiscard]] bool isEmpty();
    /// Hands the pages on, one by one, while a window shows how far it has come: `doing` is "Printing record %1 of %2".
    /// False when the user stopped it. Throws what reading and `take` throw.
    [[nodiscard]] bool layOut(const platform::PageArea& sheet,
                              const std::function<void(const platform::PrintedPage& page)>& take, const QString& doing);
    /// Of the book that was laid out.
    [[nodiscard]] const std::vector<platform::Bookmark>& bookmarks() const { return bookmarks_; }

private:
    using Entries = std::vector<output::BookEntry>;

    [[nodiscard]] BookReader reader();
    /// False when the user stopped it.
    bool write(BookReader& reader, output::BookPages& pages, const QString& doing, Entries& entries);
    void addCoverPages(BookReader& reader, output::BookPages& pages);
    void addContents(output::BookPages& pages, const platform::PageArea& sheet, Entries entries);

    session::Session& session_;
    session::Selection selection_;
    std::vector<Chapter> chapters_;
    std::span<const session::ShownRows> shown_;
    std::vector<platform::Bookmark> bookmarks_;
};

}  // namespace book
