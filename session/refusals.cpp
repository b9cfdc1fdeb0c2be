#include "session/refusals.h"

#include "platform/base/windows1252.h"
#include "platform/forms/desktop.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace session {

bool closeConfirm(platform::Desktop& desktop, const Session& session, bool& bChange) {
    if (!bChange || !session.gbCanEdit) return true;
    const bool closes = desktop.ask(
        u"Your changes or additions will not be saved unless you \r\n"
        "click the Edit button and then the Save button before \r\n"
        "closing this window.\r\n\r\n"
        "Do you want to close this window?"_s,
        u"Close Confirmation"_s, platform::Buttons::NoYes);
    if (closes) bChange = false;
    return closes;
}

void showScreenChanges(platform::Desktop& desktop) {
    desktop.notice(
        u"Changes have been made to this screen.  \r\n"
        "You must click on Edit and then either Cancel \r\n"
        "or Save before you leave this screen."_s,
        u"Screen Changes"_s);
}

void showInvalidLogin(platform::Desktop& desktop) {
    desktop.notice(
        u"You cannot add, edit, or delete information because you have not logged in with the proper password.\r\n\r\n"
        "You must go to the Security category and select Login to log in properly."_s,
        u"Invalid Login"_s);
}

void showNoDataNoLogin(platform::Desktop& desktop) {
    desktop.notice(
        u"This screen cannot be accessed because it does not contain any data.  You cannot add, edit, or delete "
        "information because you have not logged in with the proper password.  Because of this, you are not allowed "
        "access to this screen.\r\n\r\n"
        "You must go to the Security category and select Login to log in properly."_s,
        u"Invalid Login"_s);
}

void showNoEntries(platform::Desktop& desktop, const QString& purpose) {
    desktop.notice(u"There are no entries to %1."_s.arg(purpose), u"No Entries"_s);
}

bool canBeSecret(platform::Desktop& desktop, const QString& text, const QString& kind) {
    const auto foreign = platform::firstOutsideCodePage(text);
    if (foreign) showForeignCharacter(desktop, *foreign, u"in a "_s + kind);
    return !foreign;
}

void showForeignCharacter(platform::Desktop& desktop, const QString& character, const QString& where) {
    const QString code = QString::number(character.toUcs4().first(), 16).toUpper().rightJustified(4, u'0');
    desktop.notice(
        u"The character \"%1\" (U+%2) can't be used %3.\r\n\r\n"
        "What can be used are the letters of English and of the other languages of Western Europe, accents "
        "included, digits, blanks, and the signs of an English keyboard."_s.arg(character, code, where),
        u"Character Not Allowed"_s);
}

}  // namespace session
