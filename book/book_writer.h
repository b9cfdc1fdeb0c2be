#pragma once

#include <QDate>
#include <optional>
#include <vector>

#include "book/book_visitor.h"
#include "output/contents.h"
#include "output/listing.h"
#include "output/printable_grid.h"

namespace output {
class BookPages;
}

namespace platform {
class Progress;
}

namespace book {

/// Puts on pages what it hears of a book, and notes what stands where. Its listener's patience is a progress window's:
/// a book that is stopped there ends.
class BookWriter : public BookVisitor {
public:
    BookWriter(output::BookPages& pages, platform::Progress& progress, const QDate& today)
        : pages_(pages), progress_(progress), today_(today) {}

    void heading(int level, const QString& title, const QString& above) override;
    [[nodiscard]] bool record(const output::PrintableScreen& screen) override;
    void beginList(const output::PrintableGrid& head) override;
    [[nodiscard]] bool row(const QStringList& cells) override;
    void endList() override;

    /// The headings under which something stands, by pages.
    [[nodiscard]] const std::vector<output::BookEntry>& entries() const { return entries_; }

private:
    struct Heading {
        QString title{};
        bool isNoted = false;
    };
    /// Something comes under the headings that were heard last.
    void beginPages();

    output::BookPages& pages_;
    platform::Progress& progress_;
    QDate today_;
    std::vector<output::BookEntry> entries_;
    /// From the branch down to the heading heard last.
    std::vector<Heading> path_;
    QString above_;
    bool isNew_ = false;
    output::PrintableGrid list_;
    std::optional<output::ListingPages> listPages_;
};

}  // namespace book
