#include "screens/shared_table_screen.h"

#include "session/session.h"

using namespace Qt::StringLiterals;

namespace screens {

SharedTableScreen::SharedTableScreen(platform::Desktop& desktop, session::Session& session,
                                     session::Workspace& workspace, const ScreenDefinition& definition)
    : OwnedScreen(desktop, session, workspace, definition), txtType_(*this, u"txtType"_s, u"Type"_s) {}

QString SharedTableScreen::selectStatement() const {
    if (!definition().shared->filters) return OwnedScreen::selectStatement();
    const QString table = definition().table;
    QString statement =
        u"SELECT %1.* FROM Person INNER JOIN %1 ON Person.ID = %1.PersonID Where Type = %2 "_s.arg(table).arg(
            definition().shared->type);
    if (!session().gbWholeFamily) statement += u"and %1.PersonID = %2 "_s.arg(table).arg(session().gPersonID);
    return statement + u"ORDER BY Person.Seq, %1.ID"_s.arg(table);
}

QString SharedTableScreen::titleText() const {
    return definition().shared->word + QString(definition().title);
}

void SharedTableScreen::bindKeys() {
    OwnedScreen::bindKeys();
    txtType_.bind(&rows());
}

void SharedTableScreen::prepareSave() {
    txtType_.setNumber(definition().shared->type);
    OwnedScreen::prepareSave();
}

}  // namespace screens
