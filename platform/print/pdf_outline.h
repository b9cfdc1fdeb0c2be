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

/// Adds bookmarks, none of them before the page of the one ahead, behind the pages of a file that QPdfWriter has
/// finished. They are shown when the file is opened. Throws 61 for a full disk, and 57 for a file that can't be read as
/// that writer makes it.
void appendOutline(files::FileReplacement& pdf, const std::vector<Bookmark>& bookmarks);

}  // namespace platform
