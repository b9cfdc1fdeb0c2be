#pragma once

#include <QString>
#include <functional>

namespace platform {
class Desktop;
}

namespace session {
struct Session;
}

namespace data {
class BookReplacement;
}

namespace app {

class FamilySelector;
class OpenWindows;

/// The three commands that deal with the family's data as a whole: the database file and the folder of attached files.
///
/// New and Restore close every window but the host, which also lets the list of PINs encipher itself, and put another
/// file in the place of the live one. When that fails the old file is whole and open again. Attached files are replaced
/// one by one behind that, without a way back; a run that dies among them is finished by the next one.
class DatabaseCommands {
public:
    DatabaseCommands(platform::Desktop& desktop, session::Session& session, FamilySelector& selector,
                     OpenWindows& windows);

    /// Starts afresh with the empty database.
    void newDB();
    /// Restores a backup that the user chooses.
    void openDB();
    /// Copies the database and the attached files to a place that the user chooses.
    void backupDB();

private:
    /// What a copy is held against: kilobytes of the database and of the attached files.
    struct Sizes {
        double database = 0;
        double attachments = 0;
        bool operator==(const Sizes&) const = default;
    };

    /// Runs a routine that has an error title. After a failure the pointer is normal again, and the selector shows
    /// whom the open file holds.
    void attempt(const QString& title, const std::function<void()>& routine);

    void startFresh();
    [[nodiscard]] bool confirmFreshStart();
    void restore();
    [[nodiscard]] bool confirmRestore();
    void backup();
    [[nodiscard]] QString chooseTarget();
    [[nodiscard]] bool confirmBackup(const Sizes& sizes);
    /// False when it ended in its box.
    [[nodiscard]] bool copyAttachments(data::BookReplacement& book);
    [[nodiscard]] bool saveAttachments(const QString& target);

    /// Closes every window but the host; false when the user keeps one with its changes. From here on the session's
    /// database is the live file again.
    [[nodiscard]] bool closeWindows();
    /// Closes the connection, puts a copy in the place of the live file and opens what stands there, also after a
    /// failure. `companion`: where its attached files will come from.
    void replaceLive(data::BookReplacement& book, const QString& source, const QString& companion);
    void openLive();
    [[nodiscard]] data::BookReplacement replacement() const;

    void tellIncomplete();
    [[nodiscard]] QString attachments() const;

    platform::Desktop& desktop_;
    session::Session& session_;
    FamilySelector& selector_;
    OpenWindows& windows_;
    /// The windows are closed for a new file, so the selector has to be filled anew.
    bool replacing_ = false;
};

}  // namespace app
