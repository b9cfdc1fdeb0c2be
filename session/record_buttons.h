#pragma once

#include <QString>
#include <functional>

#include "platform/forms/status_line.h"

class QHBoxLayout;
class QLabel;
class QVBoxLayout;
class QWidget;

namespace platform {
class CommandButton;
}

namespace session {

/// What the two rows at the foot of a data window set off. Without `add` and `remove` the window has neither button;
/// one whose rows are only read has no `edit` either, and one that leads to other windows has `open`.
struct RecordActions {
    std::function<void()> first, previous, next, last;
    std::function<void()> add, edit, update, cancel, remove, close;
    std::function<void()> open{};
};

/// The move row with the status line, and the action row below it.
class RecordButtons {
public:
    RecordButtons(QWidget& form, QVBoxLayout& column, const QString& addCaption, RecordActions actions);

    /// The action row shows Add, Edit, Delete and Close while browsing, Save and Cancel otherwise,
    /// with the status field coloured.
    void showBrowsing(bool browsing);
    void enableMoves(bool enabled);
    [[nodiscard]] platform::StatusLine& status() const { return *status_; }
    [[nodiscard]] platform::CommandButton& add() const { return *add_; }
    /// nullptr in a window without it.
    [[nodiscard]] platform::CommandButton* open() const { return open_; }
    [[nodiscard]] const RecordActions& actions() const { return actions_; }
    /// Puts a label into the action row, ahead of Close.
    void addNote(QLabel& note);

private:
    void makeMoveRow(QWidget& form, QVBoxLayout& column);
    void makeActionRow(QWidget& form, QVBoxLayout& column, const QString& addCaption);

    RecordActions actions_;
    platform::StatusLine* status_ = nullptr;
    QHBoxLayout* actionRow_ = nullptr;
    platform::CommandButton *first_ = nullptr, *previous_ = nullptr, *next_ = nullptr, *last_ = nullptr;
    platform::CommandButton *add_ = nullptr, *edit_ = nullptr, *update_ = nullptr, *cancel_ = nullptr;
    platform::CommandButton *delete_ = nullptr, *open_ = nullptr, *close_ = nullptr;
};

}  // namespace session
