#include "session/data_window.h"

#include <QScopeGuard>

#include "platform/forms/desktop.h"
#include "session/clipboard_commands.h"
#include "session/refusals.h"
#include "session/session.h"
#include "session/window_menus.h"
#include "session/workspace.h"

using namespace Qt::StringLiterals;

namespace session {

DataWindow::DataWindow(platform::Desktop& desktop, Session& session, Workspace& workspace, const QString& name)
    : FormWindow(desktop, name, Kind::Child), session_(session), workspace_(workspace) {}

void DataWindow::Form_QueryUnload(bool& cancel) {
    cancel = !closeConfirm(desktop(), session_, bChange);
}

void DataWindow::fill() {
    auto goes = qScopeGuard([this] { leave(); });
    ShowMe();
    goes.dismiss();
}

void DataWindow::attemptLoad(const std::function<void()>& load) {
    loadFailed_ = !desktop().attempt(u"Form Load Error"_s, load);
}

bool DataWindow::mayChange() {
    if (!session_.gbCanEdit) showInvalidLogin(desktop());
    return session_.gbCanEdit;
}

WindowCommands DataWindow::commonCommands() {
    WindowCommands commands;
    commands.newDatabase = handler([this] { workspace_.newDatabase(); });
    commands.restore = handler([this] { workspace_.restoreDatabase(); });
    commands.backup = handler([this] { workspace_.backupDatabase(); });
    commands.coverPage = handler([this] { workspace_.showCoverPage(); });
    commands.familyBook = handler([this] { workspace_.showFamilyBook(); });
    commands.exit = handler([this] { workspace_.exitProgram(); });
    commands.copy = handler([this] { copySelection(*this, Copy::Keep); });
    commands.cut = handler([this] { copySelection(*this, Copy::Cut); });
    commands.paste = handler([this] { pasteSelection(*this); });
    commands.find = handler([this] { workspace_.showFind(); });
    commands.comingDates = handler([this] { workspace_.showComingDates(); });
    commands.help = handler([this] { workspace_.showHelp(); });
    commands.about = handler([this] { workspace_.showAbout(); });
    return commands;
}

}  // namespace session
