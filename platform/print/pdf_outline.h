#pragma once

#include <QString>
#include <vector>

namespace platform {

namespace files {
class FileReplacement;
}

/// A place in a PDF file, as its reader lists them beside the pages.
struct Bookmark {
    int level = 0;  ///< it belongs to the last one before it with a lower level
    QString title{};
    int page = 1;  ///< from 1
};

/// Writes a PDF file anew with bookmarks, which are shown when it is opened. Throws 61 for a full disk, and 57 for a
/// file that can't be read as one.
void writeWithOutline(const QString& pdf, const std::vector<Bookmark>& bookmarks, files::FileReplacement& target);

}  // namespace platform
