#include "screens/record_screen.h"

#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "platform/forms/check_box.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/desktop.h"
#include "platform/forms/text_control.h"
#include "screens/catalogue/catalogue.h"
#include "screens/field_checks.h"
#include "screens/frame_layout.h"
#include "session/attachment_count.h"
#include "session/navigation_keys.h"
#include "session/refusals.h"
#include "session/session.h"
#include "session/workspace.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

const QString noAttachments = u"Attachments:  0"_s;

/// Name and picture of what opens a child screen, in the order of ChildKind.
const std::pair<QString, QString> childKeys[] = {
    {u"Inventory"_s, u"view-list-details"_s}, {u"Improvements"_s, u"tools"_s}, {u"Outbuildings"_s, u"go-home"_s}};

/// Ctrl+A, Ctrl+C, Ctrl+N and Ctrl+S select, copy, add and save: they type nothing, whatever comes of them.
bool isCommand(int keyAscii) {
    constexpr auto ctrl = [](char letter) { return letter - 'A' + 1; };
    return keyAscii == ctrl('A') || keyAscii == ctrl('C') || keyAscii == ctrl('N') || keyAscii == ctrl('S');
}

}  // namespace

RecordScreen::RecordScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                           const ScreenDefinition& definition, OwnerBox owner)
    : DataWindow(desktop, session, workspace, definition.name),
      definition_(definition),
      boxes_(*this, definition, owner) {
    connect(&rows_, &data::Recordset::moveComplete, this,
            [this] { this->desktop().attempt(moveCompleteTitle(), [this] { moveComplete(); }); });
    menus_ = std::make_unique<session::WindowMenus>(*this, commands());
    for (QMenu* menu : menus_->menus())
        addMenu(menu);
    layOut();
    connectControls();
}

void RecordScreen::layOut() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 6);
    column->setSpacing(4);
    column->addWidget(&menus_->toolbar());

    page_ = new QScrollArea(this);
    page_->setWidgetResizable(true);
    page_->setFrameShape(QFrame::NoFrame);
    page_->setFocusPolicy(Qt::NoFocus);
    auto* page = new QWidget;
    auto* frames = new QVBoxLayout(page);
    frames->setContentsMargins(9, 0, 9, 0);
    lblAttachments_ = new QLabel(noAttachments, page);
    lblAttachments_->setObjectName(u"lblAttachments"_s);
    lblAttachments_->setHidden(definition_.attachmentPrefix.isEmpty());
    const std::vector<QWidget*> order = layOutFrames(*page, *frames, definition_, boxes_, *lblAttachments_);
    page_->setWidget(page);
    FieldBoxes::orderTabs(order);
    column->addWidget(page_, 1);

    auto* foot = new QVBoxLayout;
    foot->setContentsMargins(9, 0, 9, 0);
    column->addLayout(foot);
    buttons_ = std::make_unique<session::RecordButtons>(*this, *foot, definition_.addCaption, actions());
}

session::RecordActions RecordScreen::actions() {
    return {
        .first = handler([this] { cmdFirst_Click(); }),
        .previous = handler([this] { cmdPrevious_Click(); }),
        .next = handler([this] { cmdNext_Click(); }),
        .last = handler([this] { cmdLast_Click(); }),
        .add = handler([this] { cmdAdd_Click(); }),
        .edit = handler([this] { cmdEdit_Click(); }),
        .update = handler([this] { cmdUpdate_Click(); }),
        .cancel = handler([this] { cmdCancel_Click(); }),
        .remove = handler([this] { cmdDelete_Click(); }),
        .close = handler([this] { cmdClose_Click(); }),
    };
}

session::WindowCommands RecordScreen::commands() {
    session::WindowCommands commands = commonCommands();
    commands.attachments = handler([this] { mAttachments_Click(); });
    commands.print = handler([this] { mPrint_Click(); });
    commands.printAll = handler([this] { mPrintAll_Click(); });
    commands.save = handler([this] { mSave_Click(); });
    commands.saveAll = handler([this] { mSaveAll_Click(); });
    commands.saveAllHint = definition_.saveAllHint;
    for (const ChildOffer& child : definition_.children) {
        const auto& [name, icon] = childKeys[static_cast<std::size_t>(child.kind)];
        commands.children.push_back(
            {name, icon, child.tooltip, handler([this, kind = child.kind] { showChild(kind); })});
    }
    return commands;
}

void RecordScreen::connectControls() {
    for (const auto& [index, text] : boxes_.texts()) {
        text.box->setValidate([this, box = index] { return validates(box); });
    }
    for (const FieldBoxes::Check& check : boxes_.checks()) {
        check.box->onClick([this] { bChange = true; });
    }
    for (const FieldBoxes::Combo& combo : boxes_.combos()) {
        combo.box->onClick(handler([this] { cbFields_Click(); }));
        combo.box->setValidate([this] { return validatesCombos(); });
    }
    if (boxes_.owner()) boxes_.owner()->setValidate([this] { return validatesCombos(); });
}

void RecordScreen::placeOnTop(QWidget& row) {
    // Right below the toolbar.
    static_cast<QVBoxLayout*>(layout())->insertWidget(1, &row);
}

void RecordScreen::makeKeyBox() {
    txtID_ = std::make_unique<HiddenBox>(*this, u"txtID"_s, u"ID"_s);
}

// Load -------------------------------------------------------------------------------------------------------------

void RecordScreen::openRows(const QString& statement) {
    rows_.open(statement, session().gConnection);
}

void RecordScreen::fillStateCombos() {
    lookUp(u"Select * from LUStates Order By Name"_s);
    QStringList states;
    for (; !rsLookup_.eof(); rsLookup_.moveNext())
        states.append(rsLookup_.value(u"Name"_s).toString());
    rsLookup_.close();
    boxes_.fillCombos(states);
}

void RecordScreen::showStateCombos() {
    if (rows_.eof()) {
        for (const FieldBoxes::Combo& combo : boxes_.combos())
            combo.box->setListIndex(0);
    } else {
        boxes_.bindCombos(&rows_);
    }
    boxes_.copyShadows();
}

void RecordScreen::beginEmpty() {
    setButtons(false);
    bChange = false;
    cmdAdd_Click();
}

void RecordScreen::focusOn(QWidget& box) {
    if (!isVisible()) {
        focusWhenShown_ = &box;
        return;
    }
    box.setFocus(Qt::TabFocusReason);
    page_->ensureWidgetVisible(&box);
    // One that has the focus already takes no notice of that.
    if (auto* text = dynamic_cast<platform::TextControl*>(&box)) text->selectAll();
}

void RecordScreen::focusOnFirstTyped() {
    const auto& texts = boxes_.texts();
    for (auto text = texts.lower_bound(firstTyped()); text != texts.end(); ++text) {
        platform::ComboBox* combo = boxes_.comboOver(text->first);
        if (combo ? combo->isLocked() : text->second.box->isLocked()) continue;
        return focusOn(combo ? *combo : text->second.box->widget());
    }
}

void RecordScreen::focusOn(const QString& column) {
    const auto shows = [&](const auto& text) { return text.second.column && text.second.column->name == column; };
    const auto found = std::ranges::find_if(boxes_.texts(), shows);
    if (found == boxes_.texts().end()) return;
    platform::ComboBox* combo = boxes_.comboOver(found->first);
    QWidget* target = combo ? combo : &found->second.box->widget();
    // Behind what a window that comes up does with the focus itself.
    QTimer::singleShot(0, target, [this, target] {
        target->setFocus(Qt::TabFocusReason);
        page_->ensureWidgetVisible(target);
    });
}

void RecordScreen::openChild(const QString& window) {
    const auto children = childScreens();
    const auto child = std::ranges::find_if(children, [&](const auto& entry) { return entry.name == window; });
    if (child != children.end()) showChild(static_cast<ChildKind>(child - children.begin()));
}

void RecordScreen::show() {
    DataWindow::show();
    if (QWidget* box = std::exchange(focusWhenShown_, nullptr)) focusOn(*box);
}

// Add --------------------------------------------------------------------------------------------------------------

void RecordScreen::pressAdd() {
    buttons_->add().press();
}

void RecordScreen::cmdAdd_Click() {
    desktop().attempt(u"Add Error"_s, [this] {
        if (bChange) {
            session::showScreenChanges(desktop());
            return;
        }
        if (!mayAdd()) return;
        beginAdd();
        focusOnFirstTyped();
    });
}

void RecordScreen::beginAdd() {
    workspace().enableTree(false);
    boxes_.bindDates(&rows_);
    if (!(rows_.bof() && rows_.eof())) vBookmark_ = rows_.bookmark();
    rows_.addNew();
    buttons_->status().setText(u"Add record"_s);
    countBesideAdd_ = lblAttachments_->text();
    lblAttachments_->setText(noAttachments);
    bAdding_ = true;
    setButtons(false);
    for (const FieldBoxes::Check& check : boxes_.checks())
        check.box->setValue(0);
    if (!boxes_.combos().empty()) boxes_.combos().front().box->setListIndex(0);
    boxes_.bindDates(nullptr);
    bChange = false;
}

// Edit -------------------------------------------------------------------------------------------------------------

void RecordScreen::cmdEdit_Click() {
    desktop().attempt(u"Edit Error"_s, [this] {
        if (!mayChange()) return;
        buttons_->status().setText(u"Edit record"_s);
        bEditing_ = true;
        setButtons(false);
        focusOnFirstTyped();
    });
}

// Save -------------------------------------------------------------------------------------------------------------

void RecordScreen::cmdUpdate_Click() {
    desktop().attempt(u"Update Error"_s, [this] {
        if (!readyToSave() || !passesChecks()) return;
        prepareSave();
        boxes_.writeCombos(rows_, bAdding_);
        boxes_.writeDates(rows_);
        rows_.updateBatch();
        // A text that was typed into a combo, and not picked, comes to its shadow here.
        boxes_.copyShadows();
        if (bAdding_) {
            if (!finishAdd()) return;
        } else if (bEditing_) {
            showPosition();
        }
        bEditing_ = false;
        bAdding_ = false;
        setButtons(true);
        boxes_.bindDates(nullptr);
        finishSave();
    });
}

QString RecordScreen::requiredName() const {
    return boxes_.text(0).text();
}

bool RecordScreen::readyToSave() {
    if (!requiredName().isEmpty()) return true;
    desktop().notice(definition_.refusal.opening + QString(definition_.saveEnding), definition_.refusal.title);
    return false;
}

void RecordScreen::prepareSave() {
    workspace().enableTree(true);
}

bool RecordScreen::finishAdd() {
    rows_.moveLast();
    boxes_.bindCombos(&rows_);
    rows_.requery();
    bChange = false;
    if (rows_.eof()) {
        // The new row doesn't belong to this view, and the view has no other.
        cmdClose_Click();
        return false;
    }
    showAfterAdd();
    setAttachKey();
    return true;
}

// Cancel -----------------------------------------------------------------------------------------------------------

void RecordScreen::cmdCancel_Click() {
    workspace().enableTree(true);
    setButtons(true);
    if (bAdding_) lblAttachments_->setText(countBesideAdd_);
    bEditing_ = false;
    bAdding_ = false;
    boxes_.bindDates(&rows_);
    // Goes to the record of the last add, or to the first one: not to the record that was being edited.
    platform::Desktop::passOver([this] { rows_.cancelUpdate(); });
    platform::Desktop::passOver([this] {
        if (vBookmark_.value_or(0) > 0) {
            rows_.setBookmark(*vBookmark_);
        } else {
            rows_.moveFirst();
        }
    });
    finishCancel();
    boxes_.bindDates(nullptr);
    bChange = false;
    if (rows_.recordCount() == 0) {
        unload();
    } else {
        setAttachKey();
    }
}

// Delete -----------------------------------------------------------------------------------------------------------

void RecordScreen::cmdDelete_Click() {
    desktop().attempt(u"Delete Error"_s, [this] {
        if (!mayChange()) return;
        if (!confirmsDelete()) return;
        boxes_.bindDates(&rows_);
        deleteRecord();
        boxes_.bindDates(nullptr);
        bChange = false;
    });
}

bool RecordScreen::confirmsDelete() {
    return desktop().ask(deleteQuestion(), u"Delete Confirmation"_s, platform::Buttons::NoYes);
}

QString RecordScreen::deleteQuestion() {
    return u"Are you sure you want to delete this "_s + definition_.deleteNoun;
}

void RecordScreen::deleteCurrentRow() {
    rows_.deleteCurrent();
    rowDeleted();
    rows_.moveNext();
    bChange = false;
    if (rows_.eof()) rows_.moveLast();
}

// Moves ------------------------------------------------------------------------------------------------------------

void RecordScreen::cmdFirst_Click() {
    move(u"Goto First Record Error"_s, [this] { goFirst(); });
}

void RecordScreen::cmdPrevious_Click() {
    move(u"Goto Previous Record Error"_s, [this] { goPrevious(); });
}

bool RecordScreen::cmdNext_Click() {
    return move(u"Goto Next Record Error"_s, [this] { goNext(); });
}

void RecordScreen::cmdLast_Click() {
    move(u"Goto Last Record Error"_s, [this] { goLast(); });
}

bool RecordScreen::move(const QString& errorTitle, const std::function<void()>& step) {
    return desktop().attempt(errorTitle, [&] {
        if (bChange) {
            session::showScreenChanges(desktop());
            return;
        }
        if (!walking_) boxes_.bindDates(&rows_);
        step();
        // A move can change a bound check box, and its click raises the flag.
        bChange = false;
        if (!walking_) boxes_.bindDates(nullptr);
    });
}

void RecordScreen::goFirst() {
    rows_.moveFirst();
    setAttachKey();
}

void RecordScreen::goLast() {
    rows_.moveLast();
    setAttachKey();
}

void RecordScreen::goNext() {
    if (!rows_.eof()) rows_.moveNext();
    if (rows_.eof() && rows_.recordCount() > 0) {
        desktop().beep();
        setLastRecord();
        rows_.moveLast();
    }
    setAttachKey();
}

void RecordScreen::goPrevious() {
    if (!rows_.bof()) rows_.movePrevious();
    if (rows_.bof() && rows_.recordCount() > 0) {
        desktop().beep();
        rows_.moveFirst();
    }
    setAttachKey();
}

void RecordScreen::goTo(double bookmark) {
    rows_.setBookmark(bookmark);
    setAttachKey();
}

bool RecordScreen::standOn(qint64 record, const QString& column) {
    const std::optional<double> there = rows_.isOpen() ? rows_.bookmarkOf(record) : std::nullopt;
    if (!there) return false;
    const auto isThere = [&] { return rows_.hasCurrentRow() && rows_.bookmark() == *there; };
    if (!isThere()) move(u"Goto Record Error"_s, [&] { goTo(*there); });
    if (!isThere()) return false;
    focusOn(column);
    return true;
}

void RecordScreen::moveComplete() {
    boxes_.clearUnstored();
    boxes_.copyShadows();
    forgetChecks();
    showPosition();
}

void RecordScreen::showPosition() {
    buttons_->status().setText(u"Record: %1 of %2"_s.arg(rows_.absolutePosition()).arg(rows_.recordCount()));
}

// Close ------------------------------------------------------------------------------------------------------------

void RecordScreen::cmdClose_Click() {
    if (!confirmsClosing()) return;
    workspace().enableTree(true);
    unload();
}

bool RecordScreen::confirmsClosing() {
    return session::closeConfirm(desktop(), session(), bChange);
}

void RecordScreen::Form_Unload() {
    desktop().setPointer(platform::Pointer::Default);
    if (isBrowsing()) return;
    // Whichever way the window goes, what its add or edit has taken from the host comes back.
    workspace().enableTree(true);
    workspace().enableAddMember(true);
}

// Keys -------------------------------------------------------------------------------------------------------------

void RecordScreen::Form_KeyPress(int keyAscii) {
    const bool goesOn = keyAscii == '\r' || keyAscii == '\t';
    if (!goesOn && !isCommand(keyAscii)) bChange = true;
}

bool RecordScreen::Form_KeyDown(Qt::Key key, Qt::KeyboardModifiers held) {
    return isBrowsing() && session::navigate(key, held, *buttons_);
}

// Checks and aids --------------------------------------------------------------------------------------------------

bool RecordScreen::validates(int box) {
    const std::optional<data::FieldKind> kind = boxes_.requiredKind(box);
    return !kind || passes(desktop(), boxes_.text(box), *kind, boxes_.label(box));
}

// What the screen shows of its state -------------------------------------------------------------------------------

void RecordScreen::mAttachments_Click() {
    desktop().attempt(u"Attachments Error"_s, [this] {
        if (!hasRecord()) return;
        session().gvAttachKey = attachKey();
        // The first box holds the name that the record goes by, the owner's where there is one.
        workspace().showAttachments(boxes_.text(0).text());
        setNumAttachments();
    });
}

void RecordScreen::setAttachKey() {
    if (definition_.attachmentPrefix.isEmpty()) return;
    session().gvAttachKey = attachKey();
    setNumAttachments();
}

QString RecordScreen::attachKey() const {
    // The selected member's number, not the owner's: in the view of the whole family the same row has another key.
    const int record = txtID_ && !txtID_->text().isEmpty() ? txtID_->number() : 0;
    return u"%1%2_%3"_s.arg(definition_.attachmentPrefix).arg(session().gPersonID).arg(record);
}

void RecordScreen::setNumAttachments() {
    // No document tells the count.
    if (walking_) return;
    desktop().attempt(u"SetNumAttachments Error"_s, [this] {
        lblAttachments_->setText(session::attachmentCount(rsLookup_, session().gConnection, session().gvAttachKey));
    });
}

void RecordScreen::setButtons(bool browsing) {
    buttons_->showBrowsing(browsing);
    buttons_->enableMoves(browsing);
    menus_->enable(browsing);
    workspace().enableAddMember(browsing);
    // An add or an edit counts as a change from its start.
    bChange = !browsing;
}

void RecordScreen::lookUp(const QString& statement) {
    rsLookup_.release();
    rsLookup_.open(statement, session().gConnection);
}

}  // namespace screens
