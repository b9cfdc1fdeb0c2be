#pragma once

#include "attachments/attachment_store.h"
#include "platform/forms/form_window.h"

class QHBoxLayout;
class QMenu;

namespace platform {
class CommandButton;
class ListView;
}  // namespace platform

namespace session {
struct Session;
}

namespace attachments {

/// The modal dialog in which the user sees and changes the files attached to the record on screen.
class AttachDialog : public platform::FormWindow {
    Q_OBJECT

public:
    /// Shows the files of the session's attachment key. `ownerName`: the name in the line above the list.
    AttachDialog(platform::Desktop& desktop, session::Session& session, const QString& ownerName);

    void Form_Load() override;

private:
    void layOut(const QString& ownerName);
    platform::CommandButton* addButton(QHBoxLayout& row, const QString& name, const QString& caption,
                                       const QString& hint, void (AttachDialog::*routine)());
    void makePopupMenu();

    void populateListView();
    /// The list anew, with the focus in it and the file of that stored name selected, if there is one.
    void showChanges(const QString& fileName = {});

    void cmdAdd_Click();
    void addFile(const QString& source);
    void cmdView_Click();
    void viewFile();
    void lvAttach_DblClick();
    void cmdCopy_Click();
    void copySelected();
    void cmdDelete_Click();
    void mnuEditDesc_Click();
    void cmdClose_Click();

    /// False, after telling why, in a session that may change nothing.
    [[nodiscard]] bool mayChange();
    /// False, after telling so, when there is nothing to act on.
    [[nodiscard]] bool hasSelection(const QString& text, const QString& title = QStringLiteral("No Attachment"));
    /// False, after telling so, when the selected file isn't among the stored ones.
    [[nodiscard]] bool isThere();
    [[nodiscard]] QString selectedName() const;
    [[nodiscard]] QString selectedPath() const;

    session::Session& session_;
    AttachmentStore store_;
    platform::ListView* lvAttach_;
    QMenu* mnuPopupMenu_ = nullptr;
};

}  // namespace attachments
