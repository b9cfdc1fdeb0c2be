#pragma once

#include <QDate>
#include <QString>

namespace output {

struct PrintableScreen;

/// How a document for the printer begins: six empty lines, "The " and the title, the day, an empty line.
[[nodiscard]] QString documentHead(const QString& title, const QDate& today);

/// The text of a record for the printer: six empty lines, a title with the day, then every box and every check box.
/// Lines end in CR LF, or in a CR alone where a box's own line ended; none is meant to pass column 85.
[[nodiscard]] QString pageDocument(const PrintableScreen& screen, const QDate& today);

/// The same text for a file: without the empty lines at the head, the check boxes one column further left, and the
/// lines of a short box ended in the file's own way.
[[nodiscard]] QString fileDocument(const PrintableScreen& screen, const QDate& today);

}  // namespace output
