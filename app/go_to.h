#pragma once

#include <QString>

namespace platform {
class Desktop;
}

namespace session {
class DataWindow;
struct Location;
struct Place;
struct Session;
struct ShownRows;
}  // namespace session

namespace app {

class Dispatch;
class FamilySelector;
class HostPanel;
class OpenWindows;

/// The way to a place, by the steps that a user would take: the choice in the family selector, the click on the tree,
/// the key that opens a child screen, the moves to the record. What refuses one of them refuses it here in the same
/// words.
class GoTo {
public:
    GoTo(platform::Desktop& desktop, HostPanel& panel, session::Session& session, OpenWindows& windows,
         FamilySelector& selector, Dispatch& dispatch);

    /// False when it wasn't reached; the user knows why. What can be refused is asked before anything changes.
    bool goTo(const session::Place& place);

private:
    [[nodiscard]] bool reach(const session::Place& place);
    /// False, after telling why, when the tree is closed to the user.
    [[nodiscard]] bool admits();
    /// False, after telling why, when one of the windows on the way holds changes.
    [[nodiscard]] bool mayMove(const session::ShownRows& shown);
    [[nodiscard]] bool select(const session::Place& place, const session::Location& target);
    /// Brings a category's window up on a record; nullptr when one of the two didn't come about.
    [[nodiscard]] session::DataWindow* open(const QString& window, qint64 record, const QString& column);
    [[nodiscard]] bool openChild(const session::ShownRows& shown, const session::Place& place, qint64 site);
    [[nodiscard]] session::DataWindow* show(const QString& window);
    void tellGone();

    platform::Desktop& desktop_;
    HostPanel& panel_;
    session::Session& session_;
    OpenWindows& windows_;
    FamilySelector& selector_;
    Dispatch& dispatch_;
};

}  // namespace app
