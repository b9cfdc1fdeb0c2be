#pragma once

#include <QString>

namespace platform {
class Printer;
}

namespace session {
struct Definition;
}

namespace screens {

struct CoverPage {
    QString heading1{};
    QString subHeading1{};
    QString heading2{};
    QString subHeading2{};
    QString date{};
};

/// Prints the cover as one page of centred lines, with the company's address at its foot.
void printCoverPage(platform::Printer& printer, const CoverPage& cover, const session::Definition& company);

}  // namespace screens
