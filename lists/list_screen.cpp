#include "lists/list_screen.h"

#include <QLabel>
#include <utility>

#include "platform/forms/data_grid.h"
#include "platform/forms/desktop.h"
#include "session/attachment_count.h"
#include "session/navigation_keys.h"
#include "session/session.h"
#include "session/workspace.h"

using namespace Qt::StringLiterals;

namespace lists {

ListScreen::ListScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                       const ListDefinition& definition)
    : GridWindow(desktop, session, workspace, definition.window, definition.rowLines), definition_(definition) {
    connect(&rows_, &data::Recordset::moveComplete, this,
            [this] { this->desktop().attempt(u"MoveComplete Error"_s, [this] { moveComplete(); }); });
    layOut(commands(), actions());
    if (definition_.attachmentPrefix.isEmpty()) return;
    lblAttachments_ = new QLabel(this);
    lblAttachments_->setObjectName(u"lblAttachments"_s);
    buttons().addNote(*lblAttachments_);
}

session::RecordActions ListScreen::actions() {
    session::RecordActions actions{
        .first = handler([this] { move(u"Goto First Record Error"_s, &ListScreen::goFirst); }),
        .previous = handler([this] { move(u"Goto Previous Record Error"_s, &ListScreen::goPrevious); }),
        .next = handler([this] { move(u"Goto Next Record Error"_s, &ListScreen::goNext); }),
        .last = handler([this] { move(u"Goto Last Record Error"_s, &ListScreen::goLast); }),
        .add = {},
        .edit = handler([this] { cmdEdit_Click(); }),
        .update = handler([this] { cmdUpdate_Click(); }),
        .cancel = handler([this] { cmdCancel_Click(); }),
        .remove = {},
        .close = handler([this] { cmdClose_Click(); }),
    };
    if (definition_.editsOnly) return actions;
    actions.add = handler([this] { cmdAdd_Click(); });
    actions.remove = handler([this] { cmdDelete_Click(); });
    return actions;
}

session::WindowCommands ListScreen::commands() {
    session::WindowCommands commands = gridCommands();
    commands.attachments = handler([this] { mAttachments_Click(); });
    commands.hasAttachments = !definition_.attachmentPrefix.isEmpty();
    return commands;
}

// Load -------------------------------------------------------------------------------------------------------------

void ListScreen::Form_Load() {
    rows_.open(selectStatement(), session().gConnection);
    prepareRows();
    grid().setSource(&rows_);
    formatGrid();
    setCaption(listCaption(definition_, session().selection()));
}

QString ListScreen::selectStatement() const {
    return listStatement(definition_, session().selection());
}

void ListScreen::formatGrid() {
    grid().setShares(definition_.shares);
    setAttachKey();
}

QString ListScreen::cell(int column) const {
    return grid().columnText(column);
}

void ListScreen::moveComplete() {
    const int position = rows_.absolutePosition();
    buttons().status().setText(u"Record: "_s + QString::number(std::max(position, 0)));
    if (position >= 0) setAttachKey();
}

void ListScreen::rebind(bool givesUpChange) {
    grid().setSource(nullptr);
    if (givesUpChange && rows_.editMode() != data::EditMode::None) rows_.cancelUpdate();
    rows_.requery();
    prepareRows();
    grid().setSource(&rows_);
    formatGrid();
}

// Add and edit -----------------------------------------------------------------------------------------------------

void ListScreen::cmdAdd_Click() {
    desktop().attempt(u"Add Error"_s, [this] {
        if (!mayChange()) return;
        openDialog();
        if (definition_.closesTree) workspace().enableTree(false);
        buttons().status().setText(u"Add record"_s);
        bAdding_ = true;
        bChange = true;
        setButtons(false);
        dialog_->clear();
        runDialog();
    });
}

void ListScreen::cmdEdit_Click() {
    desktop().attempt(u"Edit Error"_s, [this] {
        if (!mayChange() || !mayEditRow() || !hasEntries(u"edit"_s)) return;
        openDialog();
        fillDialog();
        beginEdit();
        buttons().status().setText(u"Edit record"_s);
        bEditing_ = true;
        setButtons(false);
        dialog_->initScreen();
        runDialog();
    });
}

void ListScreen::openDialog() {
    closeDialog();
    dialog_ = &desktop().load(makeDialog());
}

void ListScreen::fillDialog() {
    for (const EditField& field : definition_.form.fields) {
        QString text = cell(field.gridColumn);
        if (field.ampersands != Ampersands::AsTheyStand) text.replace(u" && "_s, u" & "_s);
        dialog_->setText(field.name, text);
    }
}

void ListScreen::runDialog() {
    // What couldn't be saved comes back as it was typed.
    do {
        if (!dialog_->run()) return cmdCancel_Click();
    } while (!cmdUpdate_Click());
}

void ListScreen::closeDialog() {
    if (EditDialog* dialog = std::exchange(dialog_, nullptr); dialog && dialog->isLoaded()) dialog->unload();
}

// Save -------------------------------------------------------------------------------------------------------------

bool ListScreen::cmdUpdate_Click() {
    bool written = false;
    const bool shown = desktop().attempt(u"Update Error"_s, [&] {
        written = saveRow();
        if (written) showSaved();
    });
    // A row that is in the file must not be written a second time.
    if (written && !shown) cmdCancel_Click();
    return written;
}

void ListScreen::showSaved() {
    finishSave();
    rebind(bEditing_);
    closeDialog();
    if (bAdding_) platform::Desktop::passOver([this] { rows_.moveLast(); });
    endEditing();
    grid().setFocus();
}

bool ListScreen::saveRow() {
    data::Recordset& row = rowWrite();
    const QString which = bAdding_ ? u"1=2"_s : u"ID = "_s + key();
    row.open(u"Select * from %1 where "_s.arg(definition_.table) + which, session().gConnection);
    if (bAdding_) row.addNew();
    for (const EditField& field : definition_.form.fields) {
        if (!field.stored.isEmpty()) row.setValue(field.stored, dialog_->storedText(field.name));
    }
    writeRow(row);
    row.update();
    return true;
}

void ListScreen::writeRow(data::Recordset& /*row*/) {}

void ListScreen::endEditing() {
    if (definition_.closesTree) workspace().enableTree(true);
    bEditing_ = false;
    bAdding_ = false;
    setButtons(true);
}

// Cancel -----------------------------------------------------------------------------------------------------------

void ListScreen::cmdCancel_Click() {
    closeDialog();
    endEditing();
    platform::Desktop::passOver([this] { rows_.cancelUpdate(); });
    platform::Desktop::passOver([this] { rows_.moveFirst(); });
    grid().setFocus();
}

// Delete -----------------------------------------------------------------------------------------------------------

void ListScreen::cmdDelete_Click() {
    desktop().attempt(u"Delete Error"_s, [this] {
        if (!mayChange() || !hasEntries(u"delete"_s) || !mayDeleteRow()) return;
        if (!desktop().ask(u"Are you sure you want to delete this entry?"_s, u"Delete Confirmation"_s,
                           platform::Buttons::NoYes)) {
            return;
        }
        run(u"Delete from %1 Where ID = "_s.arg(definition_.table) + key());
        finishDelete();
        rebind(true);
        // The last entry may have gone.
        if (rows_.eof()) return;
        rows_.moveNext();
        if (rows_.eof()) rows_.moveLast();
    });
}

// Moves ------------------------------------------------------------------------------------------------------------

void ListScreen::move(const QString& errorTitle, void (ListScreen::*step)()) {
    desktop().attempt(errorTitle, [this, step] { (this->*step)(); });
}

void ListScreen::goNext() {
    if (!rows_.eof()) rows_.moveNext();
    if (rows_.eof() && rows_.recordCount() > 0) {
        desktop().beep();
        rows_.moveLast();
    }
}

void ListScreen::goPrevious() {
    if (!rows_.bof()) rows_.movePrevious();
    if (rows_.bof() && rows_.recordCount() > 0) {
        desktop().beep();
        rows_.moveFirst();
    }
}

void ListScreen::rowChosen(int row) {
    rows_.setBookmark(row + 1);
}

bool ListScreen::standOn(qint64 record, const QString& /*column*/) {
    bool stands = false;
    desktop().attempt(u"Goto Record Error"_s, [&] {
        const std::optional<double> there = rows_.bookmarkOf(record);
        if (!there) return;
        rows_.setBookmark(*there);
        grid().setFocus();
        stands = true;
    });
    return stands;
}

bool ListScreen::Form_KeyDown(Qt::Key key, Qt::KeyboardModifiers held) {
    return !bEditing_ && !bAdding_ && session::navigate(key, held, buttons());
}

// Close ------------------------------------------------------------------------------------------------------------

void ListScreen::cmdClose_Click() {
    workspace().enableTree(true);
    unload();
}

void ListScreen::Form_Unload() {
    closeDialog();
    grid().setSource(nullptr);
    restRows();
    desktop().setPointer(platform::Pointer::Default);
}

// Attachments ------------------------------------------------------------------------------------------------------

void ListScreen::mAttachments_Click() {
    desktop().attempt(u"Attachments Error"_s, [this] {
        setAttachKey();
        workspace().showAttachments(rows_.hasCurrentRow() ? cell(1) : QString());
        setAttachKey();
    });
}

void ListScreen::setAttachKey() {
    if (!lblAttachments_) return;
    const QString record = rows_.hasCurrentRow() ? rows_.value(u"ID"_s).toString() : u"0"_s;
    session().gvAttachKey = u"%1_%2_0"_s.arg(definition_.attachmentPrefix, record);
    desktop().attempt(u"SetNumAttachments Error"_s, [this] {
        lblAttachments_->setText(session::attachmentCount(rsCount_, session().gConnection, session().gvAttachKey));
    });
}

// What the window shows of its state -------------------------------------------------------------------------------

void ListScreen::setButtons(bool browsing) {
    buttons().showBrowsing(browsing);
    buttons().enableMoves(browsing);
}

data::Recordset& ListScreen::rowWrite() {
    rsRowWrite_.release();
    return rsRowWrite_;
}

void ListScreen::run(const QString& statement) {
    rsStatement_.release();
    rsStatement_.open(statement, session().gConnection);
}

}  // namespace lists
