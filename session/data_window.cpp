#include "session/data_window.h"

#include "platform/forms/desktop.h"
#include "session/refusals.h"
#include "session/session.h"

namespace session {

DataWindow::DataWindow(platform::Desktop& desktop, Session& session, Workspace& workspace, const QString& name)
    : FormWindow(desktop, name, Kind::Child), session_(session), workspace_(workspace) {}

void DataWindow::Form_QueryUnload(bool& cancel) {
    cancel = !closeConfirm(desktop(), session_, bChange);
}

}  // namespace session
