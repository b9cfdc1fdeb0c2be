#pragma once

#include <QString>

namespace platform {
class Desktop;
}

namespace session {
struct Session;
}

namespace app {

class CategoryTree;
class HostPanel;
class HostRows;
class OpenWindows;

/// The family selector and the button beside it: whose records all windows show, and where another member is added.
class FamilySelector {
public:
    FamilySelector(HostPanel& panel, platform::Desktop& desktop, session::Session& session, HostRows& rows,
                   OpenWindows& windows, CategoryTree& categories);

    /// Fills the list with the family's names.
    void loadFamily();
    void cbPerson_Click();
    /// All windows show that member's rows, or, for 0, what belongs to nobody in particular.
    [[nodiscard]] bool shows(qint16 member) const;
    /// Chooses the member in the list; the whole family for 0 and for one whom his name doesn't lead to. False, with
    /// the selection as it was, when it was refused.
    bool choose(qint16 member);
    void cmdAddNew_Click();

    [[nodiscard]] QString name() const;
    void setName(const QString& name);
    /// Puts the name back that the session goes by.
    void restoreName();
    void appendName(const QString& name);
    void removeName(const QString& name);
    void selectWholeName();
    /// Nobody is selected, and the selector waits for the next choice.
    void clear();
    /// Text of the name box of the Person screen; the selected member's name, or nothing, while that isn't loaded.
    [[nodiscard]] QString defaultOwner() const;

private:
    /// Who is selected, and whether the tree may be used.
    struct Selection {
        QString name;
        qint16 id = 0;
        bool wholeFamily = false;
        bool treeEnabled = false;
    };

    /// False when the choice was refused or failed.
    bool select();
    /// ID of the member of that name; 0 for nobody's.
    [[nodiscard]] qint16 memberNamed(const QString& name);
    /// The entry by which a member's rows can be chosen.
    [[nodiscard]] QString entryFor(qint16 member);
    /// Sets the session's member from the selector's text; false when it matches nobody.
    [[nodiscard]] bool accept();
    void refuse();
    [[nodiscard]] Selection selection() const;
    void putBack(const Selection& selection);

    HostPanel& panel_;
    platform::Desktop& desktop_;
    session::Session& session_;
    HostRows& rows_;
    OpenWindows& windows_;
    CategoryTree& categories_;
};

}  // namespace app
