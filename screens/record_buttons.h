#pragma once

#include <QString>
#include <functional>

class QLabel;
class QVBoxLayout;
class QWidget;

namespace platform {
class CommandButton;
}

namespace screens {

/// What the two rows at the foot of a record screen set off.
struct RecordActions {
    std::function<void()> first, previous, next, last;
    std::function<void()> add, edit, update, cancel, remove, close;
};

/// The move row with the status line, and the action row below it.
class RecordButtons {
public:
    RecordButtons(QWidget& form, QVBoxLayout& column, const QString& addCaption, const RecordActions& actions);

    /// The action row shows Add, Edit, Delete and Close while browsing, Save and Cancel otherwise.
    void showBrowsing(bool browsing);
    void enableMoves(bool enabled);
    [[nodiscard]] QLabel& status() const { return *status_; }
    [[nodiscard]] platform::CommandButton& add() const { return *add_; }

private:
    void makeMoveRow(QWidget& form, QVBoxLayout& column, const RecordActions& actions);
    void makeActionRow(QWidget& form, QVBoxLayout& column, const QString& addCaption, const RecordActions& actions);

    QLabel* status_ = nullptr;
    platform::CommandButton *first_ = nullptr, *previous_ = nullptr, *next_ = nullptr, *last_ = nullptr;
    platform::CommandButton *add_ = nullptr, *edit_ = nullptr, *update_ = nullptr, *cancel_ = nullptr;
    platform::CommandButton *delete_ = nullptr, *close_ = nullptr;
};

}  // namespace screens
