#include "app/kinbook.h"

#include <QApplication>

#include "app/mdi_host.h"
#include "app/read_only_file.h"
#include "app/restore_source.h"
#include "app/splash_window.h"
#include "data/book_check.h"
#include "data/book_replacement.h"
#include "data/daily_copy.h"
#include "data/provider_error.h"
#include "platform/base/clock.h"
#include "platform/base/files.h"
#include "platform/base/runtime_error.h"
#include "platform/base/unexpected_error.h"
#include "platform/forms/accessibility.h"
#include "platform/forms/desktop.h"
#include "platform/forms/icons.h"
#include "session/definition_file.h"
#include "session/pin_lists.h"
#include "session/session.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace app {

namespace {

constexpr int usualSplashSeconds = 2;

}  // namespace

Kinbook::Kinbook(const QString& applicationFolder)
    : desktop_(std::make_unique<platform::Desktop>()), session_(std::make_unique<session::Session>()) {
    session_->applicationFolder = applicationFolder;
    platform::installAccessibility();
    QApplication::setWindowIcon(platform::ownIcon(u"kinbook"_s));
}

Kinbook::~Kinbook() = default;

void Kinbook::main() {
    desktop_->run([this] {
        if (!desktop_->attempt(u"Main Error"_s, [this] { start(); })) unloadSplash();
    });
}

void Kinbook::start() {
    if (!getSplashValues()) {
        desktop_->notice(
            u"Values are missing for the Splash screen.  They should be contained in the SplashDef file."_s,
            u"Missing Splash Screen Values"_s);
        return;
    }
    splash().show();
    QApplication::processEvents();
    const int seconds = session_->definition.giSplashSeconds;
    desktop_->wait(seconds != 0 ? seconds : usualSplashSeconds);

    finishReplacement();
    if (!openDatabase()) {
        unloadSplash();
        return;
    }
    // Attaching and restoring make it too, where it can't be made now.
    platform::Desktop::passOver([this] { files::makeFolder(attachments()); });
    session_->useLiveDatabase();
    desktop_->load(std::make_unique<MDIHost>(*desktop_, *session_)).show();
    session::hidePinsLeftPlain(*desktop_, session_->gConnection);
    unloadSplash();
    startDailyCopy();
    tellIfReadOnly(*desktop_, *session_);
}

QString Kinbook::live() const {
    return session_->path(session::Session::liveDatabaseName());
}

QString Kinbook::attachments() const {
    return session_->path(u"Attachments"_s);
}

QString Kinbook::backups() const {
    return session_->path(u"Backup"_s);
}

bool Kinbook::getSplashValues() {
    const QString path = session_->path(u"SplashDef.txt"_s);
    if (!platform::files::fileExists(path)) {
        desktop_->notice(path + u" does not exist."_s, u"No PDF File"_s);
        return false;
    }
    std::optional<session::Definition> definition;
    try {
        definition = session::readDefinition(path);
    } catch (const platform::RuntimeError&) {
        return false;
    }
    if (!definition) {
        desktop_->notice(u"Error in Splash Screen Definition File."_s, u"Splash Screen Error"_s);
        return false;
    }
    session_->definition = *definition;
    session_->gbCanEdit = definition->gsMainPassword.isEmpty();
    return true;
}

// Database ---------------------------------------------------------------------------------------------------------

void Kinbook::finishReplacement() {
    data::BookReplacement book(live(), attachments(), backups());
    if (!book.isClaimed()) return;
    book.discardRemains();
    if (book.isUnfinished()) tellFinished(book);
}

void Kinbook::tellFinished(data::BookReplacement& book) {
    const QString companion = book.companion();
    const auto done = [&] {
        book.replaceAttachments();
        desktop_->notice(
            u"The last time your database was replaced, Kinbook was cut off before all attached files were in place.  "
            "They are in place now."_s,
            u"Restore Completed"_s);
    };
    platform::Desktop::attempt(done, [&](const platform::RuntimeError& error) {
        desktop_->notice(
            u"The last time your database was replaced, Kinbook was cut off before all attached files were in place.  "
            "They could not be brought from "_s +
                companion + u" now: "_s + error.report() + u".  Please restore that backup again."_s,
            u"Restore Incomplete"_s, platform::Icon::Critical);
    });
}

bool Kinbook::openDatabase() {
    data::Connection& connection = session_->gConnection;
    try {
        connection.open(live());
        data::checkTables(connection);
        return true;
    } catch (const data::NoDatabase& lack) {
        return restoreMissingDatabase(connection.isOpen() ? lack.description() : QString());
    }
}

void Kinbook::startDailyCopy() {
    const auto copy = [live = live(), backups = backups(), today = platform::systemClock().today()](
                          const std::stop_token& stop) { data::makeDailyCopy(live, backups, today, stop); };
    platform::passOver([&] { dailyCopy_ = std::jthread(copy); });
}

SplashWindow& Kinbook::splash() {
    if (auto* loaded = dynamic_cast<SplashWindow*>(desktop_->find(SplashWindow::formName()))) return *loaded;
    return desktop_->load(std::make_unique<SplashWindow>(*desktop_, *session_));
}

void Kinbook::unloadSplash() {
    if (platform::Form* loaded = desktop_->find(SplashWindow::formName())) loaded->unload();
}

bool Kinbook::restoreMissingDatabase(const QString& lack) {
    const QString reason = lack.isEmpty() ? QString() : u"\r\n\r\n"_s + lack;
    desktop_->notice(u"No FamilyInfo database was found.  You must restore a database in order to proceed."_s + reason);
    unloadSplash();
    const bool goesOn = desktop_->ask(
        u"When you restore a database, the current database will be destroyed.  If, for some reason, you are wanting "
        "to restore a database and not lose the current database, you must backup the current database before "
        "continuing this restore function.\r\n\r\nDo you want to continue?"_s,
        u"Restore Database Confirmation"_s, platform::Buttons::NoYes);
    if (!goesOn) return false;
    // The dialog belongs to the splash window, which is loaded again for it but not shown.
    [[maybe_unused]] const SplashWindow& holder = splash();
    const QString chosen = chooseRestoreSource(*desktop_, *session_);
    if (chosen.isEmpty()) {
        tellNoRestoreSource(*desktop_);
        return false;
    }
    if (!restoreSourceExists(*desktop_, chosen)) return false;
    replaceDatabase(chosen);
    return true;
}

void Kinbook::replaceDatabase(const QString& chosen) {
    const QString chosenName = session_->gsDatabaseName;
    session_->useLiveDatabase();
    if (session_->gConnection.isOpen()) session_->gConnection.close();
    desktop_->unloadAll([](const platform::Form& form) { return form.name() != MDIHost::formName(); });
    data::BookReplacement(live(), attachments(), backups()).replaceLostDatabase(chosen);
    session_->gConnection.open(session_->gsDatabasePath);
    desktop_->notice(u"Your database, "_s + chosenName + u", has been restored as "_s + session_->gsDatabaseName +
                     u", and is ready for use."_s);
}

}  // namespace app
