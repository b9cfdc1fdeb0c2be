#pragma once

#include <QString>
#include <span>
#include <vector>

#include "book/chapter.h"
#include "session/owner_names.h"
#include "session/selection.h"
#include "session/shown_rows.h"

namespace data {
class Connection;
class Recordset;
}  // namespace data

namespace lists {
struct ListDefinition;
}

namespace screens {
struct CoverPage;
struct ScreenDefinition;
}  // namespace screens

namespace book {

class BookVisitor;

/// Reads the family's book without a window: what the windows would show, in their order, one row at a time. The lists
/// of passwords are no part of it.
class BookReader {
public:
    /// `shown`, which is kept, tells to which records files are attached.
    BookReader(data::Connection& connection, session::Selection selection, std::vector<Chapter> chapters,
               std::span<const session::ShownRows> shown);

    /// How often a visitor will hear of a record or a row.
    [[nodiscard]] int count();
    [[nodiscard]] std::vector<screens::CoverPage> coverPages();
    /// False when the visitor wanted no more.
    bool read(BookVisitor& visitor);

private:
    [[nodiscard]] int number(const QString& statement);
    [[nodiscard]] int countOf(const Chapter& chapter);
    [[nodiscard]] int countOf(const screens::ScreenDefinition& screen);

    bool readChapter(const Chapter& chapter, BookVisitor& visitor);
    bool readScreen(const screens::ScreenDefinition& screen, const Chapter& chapter, BookVisitor& visitor);
    bool readRecords(const screens::ScreenDefinition& screen, const session::Member& owner, BookVisitor& visitor);
    bool readChildren(const screens::ScreenDefinition& site, const data::Recordset& row, const QString& owner,
                      BookVisitor& visitor);
    bool readList(const lists::ListDefinition& list, BookVisitor& visitor);
    bool readAttachedFiles(BookVisitor& visitor);

    data::Connection& connection_;
    session::Selection selection_;
    std::vector<Chapter> chapters_;
    std::span<const session::ShownRows> shown_;
    /// Whose records are read.
    std::vector<session::Member> members_;
};

}  // namespace book
