#pragma once

#include <QString>

namespace session {

/// What a window may ask of the host that it stands in.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// The category tree is closed to the user while a record is being added.
    virtual void enableTree(bool enabled) = 0;
    /// Counts every category anew and gives each node its picture.
    virtual void refreshTree() = 0;
    virtual void enableAddMember(bool enabled) = 0;
    /// Shows the tree and the selector and gives the add button its usual look: the first member is entered.
    virtual void endFirstRun() = 0;

    /// Text of the family selector.
    [[nodiscard]] virtual QString selectedName() const = 0;
    virtual void setSelectedName(const QString& name) = 0;
    virtual void appendName(const QString& name) = 0;
    /// Takes a deleted member's name out of the selector.
    virtual void removeName(const QString& name) = 0;
    /// Nobody is selected, and the selector waits for the next choice.
    virtual void clearSelection() = 0;

    /// Text of the name box of the Person screen; the selected member's name, or nothing, while that isn't loaded.
    [[nodiscard]] virtual QString defaultOwner() const = 0;

    /// Leaves the program.
    virtual void exitProgram() = 0;
};

}  // namespace session
