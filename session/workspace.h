#pragma once

#include <QString>

namespace session {

struct Place;

/// Which rows a child screen is to show: those that hang on one row of one kind of site.
struct ChildRequest {
    QString title;     ///< caption of the child's window
    QString location;  ///< description of the site
    int typeID = 0;    ///< kind of the site
    int parentID = 0;  ///< ID of the site's row
    int ownerID = 0;   ///< the member whom the site belongs to
};

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

    /// Each opens its child screen; one that is open for another site lets go of it first, and stays as it is when the
    /// user won't lose its changes.
    virtual void showInventoryScreen(const ChildRequest& request) = 0;
    virtual void showImprovementsScreen(const ChildRequest& request) = 0;
    virtual void showOutbuildingsScreen(const ChildRequest& request) = 0;
    virtual void showCoverPage() = 0;
    virtual void showComingDates() = 0;
    /// What the tree calls the category whose window shows a table's rows; empty for a table that none shows.
    [[nodiscard]] virtual QString categoryOf(const QString& table) const = 0;
    /// Asks whose book is wanted, and prints or saves it.
    virtual void showFamilyBook() = 0;
    /// Shows the files of the session's attachment key, and returns when the user has closed them.
    virtual void showAttachments(const QString& ownerName) = 0;

    /// Each replaces or copies the whole database; the first two close every window but the host, so a window that asks
    /// for one of them must return at once.
    virtual void newDatabase() = 0;
    virtual void restoreDatabase() = 0;
    virtual void backupDatabase() = 0;

    /// Opens the help at its contents; it stays open beside the program.
    virtual void showHelp() = 0;
    virtual void showAbout() = 0;

    /// Looks for what the user types in the whole book, and goes to what he opens. It may close every window, as goTo()
    /// does.
    virtual void showFind() = 0;
    /// Goes to a record, to the field that the place names: by the click on the tree that opens its window, behind the
    /// choice in the family selector without which the window wouldn't show it. False when one of these was refused,
    /// which the user has been told, or when the record isn't there any more. A choice closes every window but the
    /// host, so a window that asks for it must return at once.
    virtual bool goTo(const Place& place) = 0;

    /// Leaves the program.
    virtual void exitProgram() = 0;
};

}  // namespace session
