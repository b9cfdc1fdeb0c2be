#pragma once

#include <QString>
#include <functional>

namespace platform {
class Desktop;
}

namespace output {

struct PrintableGrid;

/// Prints a list as one job of numbered pages, called by its title; a list without rows prints nothing.
void printGrid(platform::Desktop& desktop, const PrintableGrid& grid);

/// Asks for a file and writes the list into it, in place of an existing one when it is whole. `grid` is asked for only
/// when there is a file. Throws error 70 for a file that holds the book, and what the walk and the file throw.
void saveGrid(platform::Desktop& desktop, const QString& applicationFolder, const std::function<PrintableGrid()>& grid);

}  // namespace output
