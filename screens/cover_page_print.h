#pragma once

#include <QString>

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

/// Prints the cover as one page of centred lines, with the company's address at its foot, as a job of that title.
/// Throws 482 without a printer.
void printCoverPage(const CoverPage& cover, const session::Definition& company, const QString& title);

}  // namespace screens
