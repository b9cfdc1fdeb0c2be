#include "app/windows.h"

#include "screens/person_screen.h"

using namespace Qt::StringLiterals;

namespace app {

std::unique_ptr<session::DataWindow> makeWindow(const QString& name, platform::Desktop& desktop,
                                                session::Session& session, session::Workspace& workspace) {
    if (name == u"frmKinbook"_s) return std::make_unique<screens::PersonScreen>(desktop, session, workspace);
    return nullptr;
}

}  // namespace app
