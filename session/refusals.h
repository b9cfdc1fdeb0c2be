#pragma once

#include <QString>

namespace platform {
class Desktop;
}

namespace session {

struct Session;

/// Asks whether a window with changes may close. True at once, with the flag as it is, when there are none or when the
/// session may not save any; Yes clears the flag.
[[nodiscard]] bool closeConfirm(platform::Desktop& desktop, const Session& session, bool& bChange);

/// The window holds changes and can't be left before they are saved or dropped.
void showScreenChanges(platform::Desktop& desktop);
/// A read-only session wants to change something.
void showInvalidLogin(platform::Desktop& desktop);
/// A read-only session wants to see a category that holds nothing.
void showNoDataNoLogin(platform::Desktop& desktop);
/// There is nothing to put out or to change; `purpose` goes on from "There are no entries to ".
void showNoEntries(platform::Desktop& desktop, const QString& purpose);
/// A secret is kept in a code page of 256 characters. Tells of the first character that it doesn't have; `kind` says
/// what was typed.
[[nodiscard]] bool canBeSecret(platform::Desktop& desktop, const QString& text, const QString& kind);
/// A character can't stand where it does in a secret; `where` goes on from "can't be used ".
void showForeignCharacter(platform::Desktop& desktop, const QString& character, const QString& where);

}  // namespace session
