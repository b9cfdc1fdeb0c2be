#pragma once

#include <QString>

#include "output/printable_screen.h"

namespace platform {
class RecordSource;
}

namespace screens {
struct ScreenDefinition;
}

namespace book {

/// What isn't in a record's own row.
struct Surroundings {
    QString caption;
    QString owner{};     ///< the name in the box before the table's own; for screens that have it
    QString location{};  ///< of the site on which a record of a child screen hangs
};

/// What the window of a screen would show of the current row: what its document is made of.
[[nodiscard]] output::PrintableScreen recordDocument(const screens::ScreenDefinition& definition,
                                                     const platform::RecordSource& row,
                                                     const Surroundings& surroundings);
/// The text that a column's box would show.
[[nodiscard]] QString boxText(const screens::ScreenDefinition& definition, const platform::RecordSource& row,
                              QLatin1StringView column);

}  // namespace book
