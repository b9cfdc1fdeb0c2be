#include "session/pin_lists.h"

#include "data/pin_secrets.h"
#include "platform/base/runtime_error.h"
#include "platform/forms/desktop.h"

using namespace Qt::StringLiterals;

namespace session {

void hidePins(platform::Desktop& desktop, data::Connection& connection, std::optional<qint16> member) {
    platform::Desktop::attempt(
        [&] { data::encipherPins(connection, member); },
        [&](const platform::RuntimeError& error) {
            desktop.notice(error.report() +
                               u"\r\n\r\nPINs and passwords could not be enciphered again and can be read in "
                               "the database file.  The next start of the program will encipher them."_s,
                           u"PINs And Passwords"_s, platform::Icon::Critical);
        });
}

void hidePinsLeftPlain(platform::Desktop& desktop, data::Connection& connection) {
    bool arePlain = false;
    // A file that can't be read says so elsewhere.
    platform::Desktop::passOver([&] { arePlain = data::hasPlainPins(connection); });
    if (arePlain) hidePins(desktop, connection);
}

}  // namespace session
