#pragma once

#include <QString>
#include <optional>

namespace platform {
class Desktop;
}

namespace session {
struct Place;
class DataWindow;
struct Session;
struct ShownRows;
}  // namespace session

namespace app {

class Dispatch;
class FamilySelector;
class HostPanel;
class HostRows;
class OpenWindows;

/// The way to a place, by the steps that a user would take: the choice in the family selector, the click on the tree,
/// the key that opens a child screen, the moves to the record. What refuses one of them refuses it here in the same
/// words.
class GoTo {
public:
    GoTo(platform::Desktop& desktop, HostPanel& panel, session::Session& session, HostRows& rows, OpenWindows& windows,
         FamilySelector& selector, Dispatch& dispatch);

    /// False when it wasn't reached; the user knows why. What can be refused is asked before anything changes.
    bool goTo(const session::Place& place);

private:
    /// Where the record of a place stands at this moment.
    struct Target {
        const session::ShownRows* shown = nullptr;
        qint16 member = 0;  ///< whose it is; 0: nobody's in particular
        qint64 site = 0;    ///< ID of the site that it hangs on
    };

    [[nodiscard]] bool reach(const session::Place& place);
    [[nodiscard]] std::optional<Target> locate(const session::Place& place);
    /// False, after telling why, when the tree is closed to the user.
    [[nodiscard]] bool admits();
    /// False, after telling why, when one of the windows on the way holds changes.
    [[nodiscard]] bool mayMove(const session::ShownRows& shown);
    [[nodiscard]] bool select(const session::Place& place, const Target& target);
    /// Brings a category's window up on a record; nullptr when one of the two didn't come about.
    [[nodiscard]] session::DataWindow* open(const QString& window, qint64 record, const QString& column);
    [[nodiscard]] bool openChild(const session::ShownRows& shown, const session::Place& place, qint64 site);
    [[nodiscard]] session::DataWindow* show(const QString& window);
    void tellGone();

    platform::Desktop& desktop_;
    HostPanel& panel_;
    session::Session& session_;
    HostRows& rows_;
    OpenWindows& windows_;
    FamilySelector& selector_;
    Dispatch& dispatch_;
};

}  // namespace app
