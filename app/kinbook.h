#pragma once

#include <QString>
#include <memory>

namespace platform {
class Desktop;
}

namespace session {
struct Session;
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
    /// Offers to restore a database in place of one that can't be opened; false when the start is given up.
    [[nodiscard]] bool restoreMissingDatabase();
    void replaceDatabase(const QString& chosen);

    std::unique_ptr<platform::Desktop> desktop_;
    std::unique_ptr<session::Session> session_;
};

}  // namespace app
