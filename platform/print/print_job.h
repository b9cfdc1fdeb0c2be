#pragma once

#include <QString>
#include <vector>

namespace platform {

/// A line of text on a page, or one that stands beside others. Positions are those of its top left corner, in twips
/// (1/1440 inch) from the corner of the printable area.
struct PrintedLine {
    double x = 0;
    double y = 0;
    QString text{};
    QString font{};
    bool bold = false;
    bool italic = false;
    bool underline = false;
    double size = 0;  ///< points
};

using PrintedPage = std::vector<PrintedLine>;
using PrintJob = std::vector<PrintedPage>;

/// The sheet and the part of it that the device can print on, in twips.
struct PageArea {
    double width = 0;
    double height = 0;
    double scaleWidth = 0;
    double scaleHeight = 0;
};

}  // namespace platform
