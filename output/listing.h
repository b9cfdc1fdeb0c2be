#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <vector>

#include "output/printable_grid.h"

namespace output {

/// "The ... Listing As Of ..." with the day.
[[nodiscard]] QString listingTitle(const PrintableGrid& grid, const QDate& today);

/// The captions over their columns; one that is as long as its column loses its last characters.
[[nodiscard]] QString listingHeading(const std::vector<GridColumn>& columns);

/// A piece of a cell and the position of its column on the line, from 0.
struct ListingCell {
    qsizetype position = 0;
    QString text{};
};

/// A line of a listing, without its line end.
struct ListingLine {
    QString text{};
    /// What the line has in its columns, where drawn as one string it would not keep them: a character of it is wide,
    /// or runs from right to left. Else empty.
    std::vector<ListingCell> cells{};
};

/// One row as lines: each cell is wrapped within its column, beside its neighbours. A line end or a tab within a cell
/// takes one blank, so that the columns stay where they are.
[[nodiscard]] std::vector<ListingLine> listingLines(const std::vector<GridColumn>& columns, const QStringList& cells);

/// The whole list as one text for a file: title, heading and rows, an empty line behind each row.
[[nodiscard]] QString gridDocument(const PrintableGrid& grid, const QDate& today);

/// Collects the lines of a listing into pages. A page is full with its 51st line; the empty line between two rows is
/// left out where a row ends with its page.
class ListingPages {
public:
    using Page = std::vector<ListingLine>;

    /// `print` is called with the lines of each full page.
    explicit ListingPages(std::function<void(const Page& page)> print) : print_(std::move(print)) {}

    void addRow(const std::vector<ListingLine>& lines);
    /// Hands on the last page, if anything is on it.
    void finish();

private:
    void addLine(const ListingLine& line);

    std::function<void(const Page& page)> print_;
    Page page_;
};

}  // namespace output
