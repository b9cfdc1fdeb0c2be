#pragma once

#include "app/category_tree.h"
#include "app/database_commands.h"
#include "app/dispatch.h"
#include "app/family_selector.h"
#include "app/go_to.h"
#include "app/host_rows.h"
#include "app/open_windows.h"
#include "platform/forms/mdi_frame.h"
#include "session/workspace.h"

namespace app {

class HelpViewer;
class HostPanel;

/// The host: the window in which every data window stands, with the family selector and the category tree at its left.
/// It makes the rooms that do the work, and leads to them what comes from its menus, its panel and its windows.
class MDIHost : public platform::MdiFrame, public session::Workspace {
    Q_OBJECT

public:
    MDIHost(platform::Desktop& desktop, session::Session& session);
    ~MDIHost() override;

    [[nodiscard]] static QString formName();

    [[nodiscard]] OpenWindows& windows() { return windows_; }

    void Form_Load() override;
    void Form_Unload() override;

    // Workspace
    void enableTree(bool enabled) override;
    void refreshTree() override;
    void enableAddMember(bool enabled) override;
    void endFirstRun() override;
    [[nodiscard]] QString selectedName() const override { return selector_.name(); }
    void setSelectedName(const QString& name) override { selector_.setName(name); }
    void appendName(const QString& name) override { selector_.appendName(name); }
    void removeName(const QString& name) override { selector_.removeName(name); }
    void clearSelection() override { selector_.clear(); }
    [[nodiscard]] QString defaultOwner() const override { return selector_.defaultOwner(); }
    void showInventoryScreen(const session::ChildRequest& request) override;
    void showImprovementsScreen(const session::ChildRequest& request) override;
    void showOutbuildingsScreen(const session::ChildRequest& request) override;
    void showCoverPage() override;
    void showComingDates() override;
    [[nodiscard]] QString categoryOf(const QString& table) const override;
    void showFamilyBook() override;
    void showAttachments(const QString& ownerName) override;
    void newDatabase() override { database_.newDB(); }
    void restoreDatabase() override { database_.openDB(); }
    void backupDatabase() override { database_.backupDB(); }
    void showFind() override;
    bool goTo(const session::Place& place) override { return road_.goTo(place); }
    void showHelp() override;
    void showAbout() override;
    void exitProgram() override;

protected:
    void closeHost() override;
    void frontChanged() override { dispatch_.showFrontNode(); }

private:
    void makeMenus();
    void connectControls();
    void mFamilySequence_Click();

    session::Session& session_;
    HostPanel* panel_;
    HostRows rows_;
    OpenWindows windows_;
    CategoryTree categories_;
    FamilySelector selector_;
    Dispatch dispatch_;
    GoTo road_;
    /// What was looked for last.
    QString sought_;
    DatabaseCommands database_;
    std::unique_ptr<HelpViewer> help_;
};

}  // namespace app
