#pragma once

#include <QString>
#include <vector>

namespace output {

/// A numbered text box with its label.
struct PrintableField {
    int index = 0;  ///< from 0; it is shown as index + 1
    QString label{};
    QString value{};  ///< lines end in CR LF
};

struct PrintableCheck {
    QString caption{};
    bool isSet = false;
};

/// What a record screen shows, in the order of its numbering: all that a document is made of.
struct PrintableScreen {
    QString caption{};
    std::vector<PrintableField> fields{};
    std::vector<PrintableCheck> checks{};
    // Where the record stands among those of the screen.
    int position = 0;  ///< from 1
    int count = 0;
};

/// What a print job of the record is called in the queue.
[[nodiscard]] QString jobTitle(const PrintableScreen& screen);

}  // namespace output
