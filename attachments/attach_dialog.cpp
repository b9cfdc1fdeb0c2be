#include "attachments/attach_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QScopeGuard>

#include "platform/base/files.h"
#include "platform/base/runtime_error.h"
#include "platform/forms/command_button.h"
#include "platform/forms/desktop.h"
#include "platform/forms/list_view.h"
#include "platform/forms/menus.h"
#include "session/book_files.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;
using platform::Icon;
using platform::Pointer;
using platform::RuntimeError;
namespace files = platform::files;

namespace attachments {

namespace {
constexpr int nameColumn = 0;
constexpr int pathColumn = 1;
constexpr int descriptionColumn = 3;
constexpr int oldNameColumn = 4;
}  // namespace

AttachDialog::AttachDialog(platform::Desktop& desktop, session::Session& session, const QString& ownerName)
    : FormWindow(desktop, u"frmAttach"_s, Kind::Dialog),
      session_(session),
      store_(session.gConnection, session.applicationFolder, session.gvAttachKey),
      lvAttach_(new platform::ListView({{u"FileName"_s, 16},
                                        {u"FilePath"_s, 12},
                                        {u"Type"_s, 8},
                                        {u"FileDescription"_s},
                                        {u"OldFileName"_s},
                                        {u"Seq"_s, 6}},
                                       this)) {
    setCaption(u"Kinbook Attachments"_s);
    makePopupMenu();
    layOut(ownerName);
    resize(fontMetrics().averageCharWidth() * 130, fontMetrics().lineSpacing() * 26);
}

void AttachDialog::layOut(const QString& ownerName) {
    auto* column = new QVBoxLayout(this);
    auto* owner = new QLabel(u"Name:  "_s + ownerName, this);
    owner->setObjectName(u"lblBugNum"_s);
    owner->setTextFormat(Qt::PlainText);
    column->addWidget(owner);

    lvAttach_->setName(u"lvAttach"_s);
    lvAttach_->onDoubleClick(handler([this] { lvAttach_DblClick(); }));
    lvAttach_->setPopupMenu(mnuPopupMenu_);
    column->addWidget(lvAttach_, 1);

    auto* row = new QHBoxLayout;
    addButton(*row, u"cmdAdd"_s, u"&Add..."_s, u"Add a new attachment."_s, &AttachDialog::cmdAdd_Click);
    addButton(*row, u"cmdView"_s, u"&View..."_s, {}, &AttachDialog::cmdView_Click);
    addButton(*row, u"cmdCopy"_s, u"Co&py..."_s, u"Copy the highlighted attachment."_s, &AttachDialog::cmdCopy_Click);
    addButton(*row, u"cmdDelete"_s, u"&Delete..."_s, u"Delete the highlighted attachment."_s,
              &AttachDialog::cmdDelete_Click);
    addButton(*row, u"cmdEditDesc"_s, u"&Edit Desc..."_s, u"Edit the description for the highlighted attachment."_s,
              &AttachDialog::mnuEditDesc_Click);
    row->addStretch(1);
    setCancelButton(addButton(*row, u"cmdClose"_s, u"&Close"_s, {}, &AttachDialog::cmdClose_Click));
    column->addLayout(row);
}

platform::CommandButton* AttachDialog::addButton(QHBoxLayout& row, const QString& name, const QString& caption,
                                                 const QString& hint, void (AttachDialog::*routine)()) {
    auto* button = new platform::CommandButton(this);
    button->setName(name);
    button->setText(caption);
    button->setToolTip(hint);
    button->onClick(handler([this, routine] { (this->*routine)(); }));
    row.addWidget(button);
    return button;
}

void AttachDialog::makePopupMenu() {
    mnuPopupMenu_ = platform::makeMenu(*this, u"mnuPopupMenu"_s, u"PopupMenu"_s);
    platform::addEntry(*mnuPopupMenu_, u"mnuView"_s, u"View"_s, handler([this] { cmdView_Click(); }));
    platform::addEntry(*mnuPopupMenu_, u"mnuAdd"_s, u"Add"_s, handler([this] { cmdAdd_Click(); }));
    platform::addEntry(*mnuPopupMenu_, u"mnuCopy"_s, u"Copy"_s, handler([this] { cmdCopy_Click(); }));
    platform::addEntry(*mnuPopupMenu_, u"mnuDelete"_s, u"Delete"_s, handler([this] { cmdDelete_Click(); }));
    platform::addEntry(*mnuPopupMenu_, u"mnuEditDesc"_s, u"Edit Description"_s,
                       handler([this] { mnuEditDesc_Click(); }));
}

// Load -------------------------------------------------------------------------------------------------------------

void AttachDialog::Form_Load() {
    populateListView();
    lvAttach_->selectItem(0);
    lvAttach_->setFocus();
}

void AttachDialog::populateListView() {
    desktop().attempt(u"Error in PopulateListView Process"_s, [this] {
        // Read whole before the list is emptied, so that a failure leaves it as it was.
        const std::vector<Attachment> found = store_.attachments();
        lvAttach_->clearItems();
        for (const Attachment& file : found) {
            lvAttach_->add({file.fileName, store_.folder(), file.fileType, file.fileDesc, file.oldFileName,
                            QString::number(file.seqNum)});
        }
    });
}

void AttachDialog::showChanges(const QString& fileName) {
    populateListView();
    lvAttach_->selectItem(lvAttach_->find(nameColumn, fileName));
    lvAttach_->setFocus();
}

// Add --------------------------------------------------------------------------------------------------------------

void AttachDialog::cmdAdd_Click() {
    if (!mayChange()) return;
    desktop().attempt(u"Error in Add Process"_s, [this] {
        const auto source = desktop().dialogs().chooseFile({.folder = session_.applicationFolder});
        if (!source) {
            desktop().notice(u"Process has been canceled.  No attachment was added."_s, u"Process Canceled"_s);
        } else if (source->isEmpty()) {
            desktop().notice(u"No filename was entered. No attachment was added."_s, u"No Filename"_s);
        } else {
            addFile(*source);
        }
    });
}

void AttachDialog::addFile(const QString& source) {
    Attachment stored = store_.storeFile(source);
    stored.fileDesc = desktop().dialogs().inputBox(u"Please enter a description of the attachment."_s,
                                                   u"Attachment Description"_s, {});
    store_.addRow(stored);
    showChanges(stored.fileName);
}

// View -------------------------------------------------------------------------------------------------------------

void AttachDialog::cmdView_Click() {
    if (!hasSelection(u"There is no attachment available to view."_s)) return;
    desktop().attempt(u"Error in View Process"_s, [this] {
        const auto done = qScopeGuard([this] { desktop().setPointer(Pointer::Default); });
        desktop().setPointer(Pointer::Hourglass);
        viewFile();
    });
}

void AttachDialog::viewFile() {
    const QString path = selectedPath();
    if (!path.contains(files::separator())) {
        desktop().notice(
            u"An error has been detected in the path to the attachment.  You cannot view this attachment."_s,
            u"Invalid Path"_s);
        return;
    }
    if (!isThere()) return;
    // The stored name keeps four characters of the old one: of ".docx" not even the dot.
    desktop().openFile(path, lvAttach_->selectedText(oldNameColumn));
    lvAttach_->setFocus();
}

void AttachDialog::lvAttach_DblClick() {
    desktop().setPointer(Pointer::Hourglass);
    cmdView_Click();
    desktop().setPointer(Pointer::Default);
}

// Copy -------------------------------------------------------------------------------------------------------------

void AttachDialog::cmdCopy_Click() {
    if (!hasSelection(u"There is no attachment available to copy."_s)) return;
    platform::Desktop::attempt([this] { copySelected(); },
                               [this](const RuntimeError& error) {
                                   const bool denied = error.error() == platform::Error::PermissionDenied;
                                   const QString advice = denied ? u"File may be read only."_s : QString();
                                   desktop().notice(error.report() + advice, u"Error in Copy Process"_s);
                               });
}

void AttachDialog::copySelected() {
    const QString path = selectedPath();
    if (!isThere()) return;
    const QString chosen = desktop().dialogs().fileDialog({.mode = platform::FileRequest::Mode::Save,
                                                           .folder = session_.applicationFolder,
                                                           .title = u"Save "_s + path + u" As"_s,
                                                           .fileName = selectedName()});
    if (chosen.isEmpty()) return;
    session::BookFiles{session_.applicationFolder}.refuse(chosen);
    const bool replaces = files::fileExists(chosen);
    files::copyFile(path, chosen);
    // The stored file is read-only, and a new copy with it; a file of the user's that it replaces was his to write.
    if (replaces) files::setReadOnly(chosen, false);
    lvAttach_->setFocus();
}

// Delete -----------------------------------------------------------------------------------------------------------

void AttachDialog::cmdDelete_Click() {
    if (!mayChange()) return;
    if (!hasSelection(u"There is no attachment available to delete."_s)) return;
    desktop().attempt(u"Error in Delete Process"_s, [this] {
        if (!desktop().ask(u"Do you want to delete the highlighted attachment?"_s, u"Delete File Confirmation"_s,
                           platform::Buttons::NoYes)) {
            return;
        }
        store_.remove(selectedName());
        showChanges();
    });
}

// Edit the description ---------------------------------------------------------------------------------------------

void AttachDialog::mnuEditDesc_Click() {
    if (!mayChange()) return;
    if (!hasSelection(u"There is no description available to edit."_s, u"No Description"_s)) return;
    const QString description =
        desktop().dialogs().inputBox(u"Enter the corrected file description."_s, u"Edit File Description"_s,
                                     lvAttach_->selectedText(descriptionColumn));
    const QString edited = selectedName();
    if (!description.isEmpty()) store_.setDescription(edited, description);
    showChanges(edited);
}

// Close ------------------------------------------------------------------------------------------------------------

void AttachDialog::cmdClose_Click() {
    unload();
}

// What the routines share ------------------------------------------------------------------------------------------

bool AttachDialog::mayChange() {
    if (!session_.gbCanEdit) session::showInvalidLogin(desktop());
    return session_.gbCanEdit;
}

bool AttachDialog::hasSelection(const QString& text, const QString& title) {
    if (lvAttach_->count() == 0) desktop().notice(text, title);
    return lvAttach_->count() > 0;
}

bool AttachDialog::isThere() {
    if (store_.isStored(selectedName())) return true;
    desktop().notice(selectedPath() + u" does not exist."_s, u"File Not Found"_s);
    return false;
}

QString AttachDialog::selectedName() const {
    return lvAttach_->selectedText(nameColumn);
}

QString AttachDialog::selectedPath() const {
    return lvAttach_->selectedText(pathColumn) + selectedName();
}

}  // namespace attachments
