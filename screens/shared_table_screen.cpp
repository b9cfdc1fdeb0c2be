#include "screens/shared_table_screen.h"

using namespace Qt::StringLiterals;

namespace screens {

SharedTableScreen::SharedTableScreen(platform::Desktop& desktop, session::Session& session,
                                     session::Workspace& workspace, const ScreenDefinition& definition)
    : OwnedScreen(desktop, session, workspace, definition), txtType_(*this, u"txtType"_s, u"Type"_s) {}

void SharedTableScreen::bindKeys() {
    OwnedScreen::bindKeys();
    txtType_.bind(&rows());
}

void SharedTableScreen::prepareSave() {
    txtType_.setNumber(definition().shared->type);
    OwnedScreen::prepareSave();
}

}  // namespace screens
