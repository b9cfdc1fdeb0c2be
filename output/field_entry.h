#pragma once

#include <QString>

namespace output {

struct PrintableField;

enum class Medium { Page, File };

/// The lines of one box: its number, its label, and its value broken to the width of the page.
///
/// A value that fits behind its label stands on that line, its own line ends kept; in one of several lines the last
/// line goes without its last character. A longer one is broken at blanks near column 85, and cut where there is none;
/// a single character left over at its end is not written.
[[nodiscard]] QString fieldEntry(const PrintableField& field, Medium medium);

}  // namespace output
