#pragma once

#include <optional>

#include "data/recordset.h"
#include "lists/edit_dialog.h"

namespace lists {

/// A text that an entry can't go without.
struct RequiredText {
    QString field;
    QString title;
    QString text;
};

/// Which rows are numbered together: those of a table, or those of one member in it.
struct Sequence {
    QString table;
    /// The condition that all its statements share, "PersonID = 3"; empty for the whole table.
    QString scope{};
};

/// The edit dialog of a list whose rows have a place in an order: a row goes to the number that is entered.
class SequencedDialog : public EditDialog {
    Q_OBJECT

public:
    SequencedDialog(platform::Desktop& desktop, const EditForm& form, data::Connection& connection, Sequence sequence,
                    std::optional<RequiredText> required = {});

protected:
    /// The number is one, at most one past the largest; the required text is there.
    [[nodiscard]] bool accepts() override;

private:
    [[nodiscard]] bool isWithinReach();

    data::Connection& connection_;
    Sequence sequence_;
    std::optional<RequiredText> required_;
};

/// The name of the box with the row's number.
inline const QString txtSequence = QStringLiteral("txtSequence");

}  // namespace lists
