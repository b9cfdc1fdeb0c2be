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

/// One row as lines without line ends: each cell is wrapped within its column, beside its neighbours. A line end or a
/// tab within a cell takes one blank, so that the columns stay where they are.
[[nodiscard]] QStringList listingLines(const std::vector<GridColumn>& columns, const QStringList& cells);

/// The whole list as one text for a file: title, heading and rows, an empty line behind each row.
[[nodiscard]] QString gridDocument(const PrintableGrid& grid, const QDate& today);

/// Collects the lines of a listing into pages. A page is full with its 51st line; the empty line between two rows is
/// left out where a row ends with its page.
class ListingPages {
public:
    /// `print` is called with the text of each full page, its lines ended by CR LF.
    explicit ListingPages(std::function<void(const QString& text)> print) : print_(std::move(print)) {}

    void addRow(const QStringList& lines);
    /// Hands on the last page, if anything is on it.
    void finish();

private:
    void addLine(const QString& line);

    std::function<void(const QString& text)> print_;
    QString text_;
    int lines_ = 0;
};

}  // namespace output
