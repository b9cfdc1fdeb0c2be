#pragma once

#include <QString>
#include <memory>
#include <thread>

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

class SplashWindow;

/// One run of the program, from its start to its last window.
class Kinbook {
public:
    /// `applicationFolder`: the folder in which all of the program's files lie, without a closing separator.
    explicit Kinbook(const QString& applicationFolder);
    ~Kinbook();

    /// Shows the splash window, opens the database and brings the host up. Returns when the host is up, or when the
    /// start was given up and no window is left.
    void main();

    [[nodiscard]] platform::Desktop& desktop() { return *desktop_; }
    [[nodiscard]] session::Session& session() { return *session_; }

private:
    void start();
    [[nodiscard]] bool getSplashValues();
    [[nodiscard]] SplashWindow& splash();
    void unloadSplash();
    /// Finishes what a run that died while it replaced the book left undone, unless another run is at it right now.
    void finishReplacement();
    void tellFinished(data::BookReplacement& book);
    /// Opens the family's database, or one that is restored in its place; false when the start is given up.
    [[nodiscard]] bool openDatabase();
    /// Offers to restore a database in place of one that is missing or can't be used; false when the start is given up.
    /// `lack`: what a whole database lacks to be a book of this program; empty for all others.
    [[nodiscard]] bool restoreMissingDatabase(const QString& lack);
    void replaceDatabase(const QString& chosen);
    [[nodiscard]] QString live() const;
    [[nodiscard]] QString attachments() const;
    [[nodiscard]] QString backups() const;
    /// In a thread of its own, so that nobody waits for it.
    void startDailyCopy();

    std::unique_ptr<platform::Desktop> desktop_;
    std::unique_ptr<session::Session> session_;
    std::jthread dailyCopy_;
};

}  // namespace app
