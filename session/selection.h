#pragma once

#include <QString>

namespace session {

/// Whose rows are wanted: one member's, or those of the whole family.
struct Selection {
    QString name = QStringLiteral("Whole Family");  ///< the member's, or what stands for the family
    int personID = 0;                               ///< ID of the member; 0 for the whole family
    bool wholeFamily = true;
};

}  // namespace session
