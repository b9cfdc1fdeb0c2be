#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

namespace output {

/// A column of a list as it is put out.
struct GridColumn {
    QString caption{};
    int width = 1;  ///< positions; see listingWidth()
};

/// Calls `visit` with the texts of each row's columns, from the first row through the last. No row is kept.
using GridWalk = std::function<void(const std::function<void(const QStringList& cells)>& visit)>;

/// What a list shows: all that a listing is made of. Hidden columns are left out by whoever makes it.
struct PrintableGrid {
    QString caption{};
    std::vector<GridColumn> columns{};
    GridWalk walk{};
};

/// The characters that a column gets on a page of 80: its share of the list's width, rounded down. Both widths are in
/// the same unit. At least one, or a text would never come to its end.
[[nodiscard]] int listingWidth(double column, int grid);

}  // namespace output
