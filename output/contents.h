#pragma once

#include <QDate>
#include <QString>
#include <vector>

namespace output {

/// A heading of a book and the page on which what stands under it begins.
struct BookEntry {
    int level = 0;  ///< it belongs to the last one before it with a lower level
    QString title{};
    int page = 1;
};

/// The table of contents as a document like those of the records: six empty lines, the book's title with the day, then
/// a line for each entry with the number of its page at the end. How many lines it has depends on the entries alone,
/// not on their pages.
[[nodiscard]] QString contentsDocument(const QString& title, const std::vector<BookEntry>& entries, const QDate& today);

}  // namespace output
