#pragma once

#include "app/category_tree.h"
#include "app/database_commands.h"
#include "app/dispatch.h"
#include "data/recordset.h"
#include "platform/forms/mdi_frame.h"
#include "session/workspace.h"

namespace session {
class DataWindow;
}

namespace app {

class HelpViewer;
class HostPanel;

/// The host: the window in which every data window stands, with the family selector and the category tree at its left.
class MDIHost : public platform::MdiFrame, public session::Workspace {
    Q_OBJECT

public:
    MDIHost(platform::Desktop& desktop, session::Session& session);
    ~MDIHost() override;

    [[nodiscard]] static QString formName();

    [[nodiscard]] session::Session& session() const { return session_; }
    [[nodiscard]] platform::TreeView& tvTree() const;
    [[nodiscard]] CategoryTree& categories() { return categories_; }
    /// Index of the tree node clicked last, 1 at start.
    [[nodiscard]] int currentNode() const { return iCurrentNode_; }
    void setCurrentNode(int index) { iCurrentNode_ = index; }
    /// Selects the node of the window in front in the tree, or none.
    void showFrontNode();
    /// The active child holds unsaved changes.
    [[nodiscard]] bool activeHasChanges() const;
    /// Rows behind "SELECT Count(*) from" and the given text.
    [[nodiscard]] qint64 count(const QString& counted);
    /// The data window of that name, loaded if it isn't yet; nullptr for a name that no window has.
    [[nodiscard]] session::DataWindow* touch(const QString& name);
    /// Fills the selector with the family's names.
    void loadFamily();
    /// Selects the selector's whole text.
    void selectWholeName();

    void Form_Load() override;
    void Form_Unload() override;

    // Workspace
    void enableTree(bool enabled) override;
    void refreshTree() override;
    void enableAddMember(bool enabled) override;
    void endFirstRun() override;
    [[nodiscard]] QString selectedName() const override;
    void setSelectedName(const QString& name) override;
    void appendName(const QString& name) override;
    void removeName(const QString& name) override;
    void clearSelection() override;
    [[nodiscard]] QString defaultOwner() const override;
    void showInventoryScreen(const session::ChildRequest& request) override;
    void showImprovementsScreen(const session::ChildRequest& request) override;
    void showOutbuildingsScreen(const session::ChildRequest& request) override;
    void showCoverPage() override;
    void showAttachments(const QString& ownerName) override;
    void newDatabase() override { database_.newDB(); }
    void restoreDatabase() override { database_.openDB(); }
    void backupDatabase() override { database_.backupDB(); }
    void showHelp() override;
    void showAbout() override;
    void exitProgram() override;

protected:
    void closeHost() override;
    void frontChanged() override;

private:
    /// Who is selected, and whether the tree may be used.
    struct Selection {
        QString name;
        qint16 id = 0;
        bool wholeFamily = false;
        bool treeEnabled = false;
    };

    void makeMenus();
    void connectControls();
    void cbPerson_Click();
    /// Sets the session's member from the selector's text; false when it matches nobody.
    [[nodiscard]] bool acceptSelection();
    void refuseSelection();
    [[nodiscard]] Selection selection() const;
    void putBack(const Selection& selection);
    void cmdAddNew_Click();
    void picture1_Click();
    void mFamilySequence_Click();
    void openChild(const QString& window, const QString& table, const session::ChildRequest& request);
    /// A window is loaded besides the host (the owner of the help isn't one), and the active one holds changes.
    [[nodiscard]] bool leavesChanges() const;
    [[nodiscard]] bool onlyHelpIsOpen() const;
    /// Every window but the host, in the order in which they are asked whether they may close.
    [[nodiscard]] std::vector<platform::Form*> windowsToAsk();
    /// Asks where there is something to lose; false, and nothing is forgotten, when one window stays.
    [[nodiscard]] bool windowsAgreeToClose();

    session::Session& session_;
    HostPanel* panel_;
    data::Recordset rsHost_;
    CategoryTree categories_;
    Dispatch dispatch_;
    DatabaseCommands database_;
    std::unique_ptr<HelpViewer> help_;
    int iCurrentNode_ = 1;
};

}  // namespace app
