#pragma once

#include <QString>
#include <vector>

namespace lists {

/// How the ampersand of a text travels between the dialog and the table. A table keeps " && " for " & ".
enum class Ampersands {
    AsTheyStand,
    SingleInDialog,  ///< doubled ones come up single, and are saved so
    DoubledInTable,  ///< doubled ones come up single, and single ones are doubled again on OK
};

/// One input of an edit dialog.
struct EditField {
    enum class Kind { Line, Memo, Combo };

    QString name;
    QString label;
    int gridColumn;    ///< where Edit takes its text from
    QString stored{};  ///< column of the table that Save writes as it stands; empty for one that is looked up
    Ampersands ampersands = Ampersands::AsTheyStand;
    Kind kind = Kind::Line;
    bool enabled = true;
};

/// An edit dialog's window and its inputs, from the top to the bottom.
struct EditForm {
    QString name;
    QString caption;
    std::vector<EditField> fields;
    QString selected{};  ///< the input that Edit comes up in, its text selected; empty: the first, nothing selected
};

}  // namespace lists
