#pragma once

#include <QString>
#include <functional>

namespace platform {
class Desktop;
}

namespace output {

struct PrintableScreen;

/// Prints a record as a job of its own. Failures are shown, the missing printer with a box of its own.
void createPrintDoc(platform::Desktop& desktop, const PrintableScreen& screen);

/// Asks for a file and writes the record into it, in place of an existing one when it is whole. The definition file's
/// name is refused in any folder, and so is every file that holds the book. Failures are shown, those of making the
/// text apart from those of writing it.
void saveFile(platform::Desktop& desktop, const QString& applicationFolder,
              const std::function<PrintableScreen()>& screen);

/// How a screen asks where all its records go.
struct SaveAllRequest {
    QString folder;            ///< the application folder, in which the dialog starts
    bool asksForText = false;  ///< text files alone are offered, and their ending is added
    QString noFileTitle{};
    QString noFileText{};
    int count = 0;  ///< records
};

/// Calls `visit` with each record on screen, from the first through the last, or up to one for which it gives false.
using RecordWalk = std::function<void(const std::function<bool()>& visit)>;

/// Prints the records of a walk, each as a job of its own made by `print`. The user can stop it between two records,
/// and is then told how many were printed.
void printAll(platform::Desktop& desktop, int count, const RecordWalk& walk, const std::function<void()>& print);

/// Asks for a file and writes the records of the walk into it, each on its way, with two empty lines behind it.
/// A file that holds the book is refused. A failure ends the walk, is shown, and leaves a file of that name as it was.
/// The user can stop it between two records: the file holds those up to there then, and he is told how many.
void saveAll(platform::Desktop& desktop, const SaveAllRequest& request, const RecordWalk& walk,
             const std::function<PrintableScreen()>& screen);

}  // namespace output
