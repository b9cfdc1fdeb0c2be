#pragma once

#include <vector>

#include "platform/print/pdf_outline.h"

namespace support {

/// The bookmarks of a PDF file as another program reads them: the level is how deep one hangs. What that program
/// complains of fails the test.
[[nodiscard]] std::vector<platform::Bookmark> bookmarksOf(const QString& pdf);
/// What it tells of the file as a whole: its title and the number of its pages, among other lines.
[[nodiscard]] QString aboutPdf(const QString& pdf);

}  // namespace support
