#include "app/mdi_host.h"

#include <QGroupBox>
#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <algorithm>

#include "app/about_dialog.h"
#include "app/help_viewer.h"
#include "app/host_panel.h"
#include "app/tree_pictures.h"
#include "app/windows.h"
#include "attachments/attach_dialog.h"
#include "platform/base/conversions.h"
#include "platform/base/files.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form_window.h"
#include "platform/forms/icons.h"
#include "platform/forms/menus.h"
#include "platform/forms/tree_view.h"
#include "screens/child_screen.h"
#include "screens/person_screen.h"
#include "session/data_window.h"
#include "session/form_access.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

const QString wholeFamily = u"Whole Family"_s;
const QString personScreen = u"frmKinbook"_s;
const QString helpOwner = u"Form1"_s;

/// A disabled control hands the focus on, which would bring whatever window comes next in the tab order to the front.
void enable(QWidget& control, bool enabled) {
    if (!enabled) control.clearFocus();
    control.setEnabled(enabled);
}

}  // namespace

MDIHost::MDIHost(platform::Desktop& desktop, session::Session& session)
    : MdiFrame(desktop, formName()),
      session_(session),
      panel_(new HostPanel(this)),
      categories_(panel_->tvTree(), session, rsHost_),
      dispatch_(*this),
      database_(*this) {
    desktop.setHost(this);
    setPanel(*panel_);
    setCaption(u"Larkmoor Kinbook"_s);
    setEmptyPicture(platform::ownIcon(u"kinbook"_s));
    // Leaves room for the frame that the desktop puts around the window.
    resize(QSize(1200, 800).boundedTo(QGuiApplication::primaryScreen()->availableSize() - QSize(8, 40)));
    makeMenus();
    connectControls();
}

MDIHost::~MDIHost() = default;

QString MDIHost::formName() {
    return u"MDIHost"_s;
}

void MDIHost::makeMenus() {
    QMenu* file = platform::makeMenu(*this, u"mFile"_s, u"&File"_s);
    platform::addEntry(*file, u"mNew"_s, u"New"_s, handler([this] { newDatabase(); }));
    platform::addEntry(*file, u"mOpen"_s, u"Restore"_s, handler([this] { restoreDatabase(); }));
    platform::addEntry(*file, u"mBackup"_s, u"Backup"_s, handler([this] { backupDatabase(); }));
    platform::addSeparator(*file, u"Sep1"_s);
    platform::addEntry(*file, u"mFamilySequence"_s, u"Family Sequence..."_s,
                       handler([this] { mFamilySequence_Click(); }));
    platform::addSeparator(*file, u"Sep2"_s);
    platform::addEntry(*file, u"mCoverPage"_s, u"Cover Page"_s, handler([this] { showCoverPage(); }));
    platform::addSeparator(*file, u"Sep4"_s);
    platform::addEntry(*file, u"mExit"_s, u"Exit"_s, handler([this] { closeHost(); }));
    addMenu(file);

    QMenu* help = platform::makeMenu(*this, u"mnuHelp1"_s, u"&Help"_s);
    platform::addEntry(*help, u"mnuHelp"_s, u"Kinbook Help"_s, handler([this] { showHelp(); }));
    platform::addSeparator(*help, u"Sep3"_s);
    platform::addEntry(*help, u"mnuAbout"_s, u"About"_s, handler([this] { showAbout(); }));
    addMenu(help);
}

void MDIHost::connectControls() {
    panel_->cbPerson().onClick(handler([this] { cbPerson_Click(); }));
    panel_->cbPerson().onEnter(handler([this] { cbPerson_Click(); }));
    panel_->cmdAddNew().onClick(handler([this] { cmdAddNew_Click(); }));
    panel_->onClick(handler([this] { picture1_Click(); }));
    tvTree().onNodeClick([this](int index) { desktop().run([&] { dispatch_.nodeClick(index); }); });
    tvTree().onToggle(handler([this] {
        if (iCurrentNode_ > 1) categories_.setImage(iCurrentNode_);
    }));
}

// Start ------------------------------------------------------------------------------------------------------------

void MDIHost::Form_Load() {
    desktop().attempt(u"MDIForm Load Error"_s, [this] {
        session_.gbAddMember = false;
        rsHost_.setLockType(data::LockType::ReadOnly);
        rsHost_.setCursorType(data::CursorType::ForwardOnly);
        rsHost_.setCursorLocation(data::CursorLocation::Server);
        loadFamily();
        categories_.build();
        tvTree().expandNode(1);
        session_.gPersonID = 0;
        session_.gsPersonName = u"Family"_s;
        session_.gbWholeFamily = true;
        tvTree().setEnabled(false);
        tvTree().setImages(treePictures());
        categories_.setAllImages();
        if (panel_->cbPerson().listCount() < 2) {
            panel_->showFirstRun();
            panel_->cmdAddNew().setFocus();
        }
    });
}

void MDIHost::loadFamily() {
    desktop().attempt(u"LoadFamily Error"_s, [this] {
        platform::ComboBox& selector = panel_->cbPerson();
        selector.clearList();
        rsHost_.release();
        rsHost_.open(u"SELECT ID, Seq, LegalName from Person Order By Seq"_s, session_.gConnection);
        selector.addItem(wholeFamily);
        // The first member without a name ends the list.
        while (!rsHost_.eof() && !rsHost_.value(u"LegalName"_s).isNull()) {
            selector.addItem(rsHost_.value(u"LegalName"_s).toString());
            rsHost_.moveNext();
        }
        if (selector.isVisible()) selector.selectAll();
    });
}

void MDIHost::selectWholeName() {
    panel_->cbPerson().selectAll();
}

// Selection --------------------------------------------------------------------------------------------------------

bool MDIHost::onlyHelpIsOpen() const {
    return session_.gbHelpOpened && desktop().count() == 2 && desktop().find(helpOwner);
}

bool MDIHost::leavesChanges() const {
    return desktop().count() > 1 && !onlyHelpIsOpen() && activeHasChanges();
}

bool MDIHost::activeHasChanges() const {
    const auto* active = dynamic_cast<session::DataWindow*>(activeForm());
    return active && active->bChange;
}

void MDIHost::cbPerson_Click() {
    desktop().attempt(u"cbPersonClick Error"_s, [this] {
        if (leavesChanges()) {
            setSelectedName(session_.gsPersonName);
            session::showScreenChanges(desktop());
            return;
        }
        const Selection before = selection();
        if (!acceptSelection()) {
            refuseSelection();
            return;
        }
        if (!windowsAgreeToClose()) {
            // A window that was opened for one member doesn't stand under another.
            putBack(before);
            return;
        }
        desktop().unloadAll([](const platform::Form& form) { return form.name() != formName(); });
        if (panel_->frame1().isVisible()) {
            if (session::DataWindow* screen = touch(personScreen)) screen->show();
        }
        categories_.setAllImages();
    });
}

bool MDIHost::acceptSelection() {
    session_.gsPersonName = selectedName();
    rsHost_.release();
    rsHost_.open(u"SELECT ID from Person where LegalName = '"_s + session_.gsPersonName + u"'"_s, session_.gConnection);
    const bool found = !rsHost_.eof();
    session_.gPersonID = found ? platform::toInteger(rsHost_.value(u"ID"_s).toDouble()) : qint16{0};
    if (found) tvTree().setEnabled(true);
    rsHost_.close();
    session_.gbWholeFamily = session_.gsPersonName == wholeFamily && session_.gPersonID == 0;
    if (session_.gbWholeFamily) tvTree().setEnabled(true);
    return session_.gsPersonName == wholeFamily || session_.gPersonID != 0;
}

MDIHost::Selection MDIHost::selection() const {
    return {session_.gsPersonName, session_.gPersonID, session_.gbWholeFamily, tvTree().isEnabled()};
}

void MDIHost::putBack(const Selection& selection) {
    session_.gsPersonName = selection.name;
    session_.gPersonID = selection.id;
    session_.gbWholeFamily = selection.wholeFamily;
    enableTree(selection.treeEnabled);
    setSelectedName(selection.name);
}

void MDIHost::refuseSelection() {
    if (selectedName().isEmpty()) return;
    desktop().notice(
        u"The name, "_s + selectedName() +
            u", does not match any of the family member names that you have already entered.  Either (1) the spelling "
            "is different or (2) this family member has not yet been entered.\r\n\r\n"
            "(1) If the spelling is different, the easiest way to get the correct spelling is to click on the "
            "down-arrow button on the Select Whole Family or Individual drop down box in the upper left hand corner "
            "of the screen and select the correct name from the list that drops down.  You will then be able to see "
            "the data window for the selected family member or for the whole family.\r\n\r\n"
            "(2) If the family member has not yet been entered into the computer, you may click on the Enter Another "
            "Family Member button at the upper left hand corner of the screen.  You will then have no trouble "
            "entering the information for this new family member.\r\n\r\n"
            "Go for it...."_s,
        u"No Matching Family Member"_s);
    panel_->cbPerson().selectAll();
}

void MDIHost::cmdAddNew_Click() {
    desktop().attempt(u"Form Load Error"_s, [this] {
        if (leavesChanges()) {
            session::showScreenChanges(desktop());
            return;
        }
        const bool usual = panel_->cmdAddNew().text() == HostPanel::usualAddCaption();
        if (selectedName().isEmpty() && usual) {
            desktop().notice(
                u"You must have an Individual or Whole Family selected before you can add another family member."_s,
                u"Missing Selection"_s);
            return;
        }
        tvTree().setEnabled(false);
        categories_.setAllImages();
        const bool addsAtOnce = desktop().count() > 1 && usual;
        if (!addsAtOnce) session_.gbAddMember = true;
        session::DataWindow* screen = touch(personScreen);
        screen->show();
        if (addsAtOnce) static_cast<screens::PersonScreen*>(screen)->pressAdd();
    });
}

void MDIHost::picture1_Click() {
    if (tvTree().isEnabled()) return;
    desktop().notice(
        u"You have clicked on the Data Window Selection Box when it is disabled.  It is disabled either because (1) no "
        "family member has been selected and the large data window area to the right is empty or (2) you have a data "
        "window to the right of the sort that must be either saved or canceled before you can proceed (only Save and "
        "Cancel buttons are displayed at the bottom of the data window).\r\n\r\n"
        "(1) If no family member has been selected, select one by using the Select Whole Family or Individual drop "
        "down box in the upper left hand corner of the screen.\r\n\r\n"
        "(2) If you have a data window to the right that has only Save and Cancel buttons at the bottom, either save "
        "or cancel the data window and all will be well and you can then select another category."_s);
}

// Windows ----------------------------------------------------------------------------------------------------------

qint64 MDIHost::count(const QString& counted) {
    rsHost_.release();
    rsHost_.open(u"SELECT Count(*) as NumRec from "_s + counted, session_.gConnection);
    const qint64 rows = rsHost_.value(u"NumRec"_s).toLongLong();
    rsHost_.close();
    return rows;
}

void MDIHost::frontChanged() {
    showFrontNode();
}

void MDIHost::showFrontNode() {
    const platform::Form* front = activeForm();
    tvTree().showNode(front ? dispatch_.nodeOf(front->name()) : 0);
}

session::DataWindow* MDIHost::touch(const QString& name) {
    if (auto* loaded = dynamic_cast<session::DataWindow*>(desktop().find(name))) {
        if (!loaded->loadFailed() || !loaded->unload()) return loaded;
    }
    std::unique_ptr<session::DataWindow> window = makeWindow(name, desktop(), session_, *this);
    return window ? &desktop().load(std::move(window)) : nullptr;
}

void MDIHost::mFamilySequence_Click() {
    if (count(u"Person"_s) == 0 && !session_.gbCanEdit) {
        session::showNoDataNoLogin(desktop());
        return;
    }
    touch(u"frmFamilySequence"_s)->show();
}

void MDIHost::openChild(const QString& window, const QString& table, const session::ChildRequest& request) {
    const QString counted =
        u"%1 Where TypeID = %2 And ParentID = %3"_s.arg(table).arg(request.typeID).arg(request.parentID);
    if (count(counted) == 0 && !session_.gbCanEdit) {
        session::showNoDataNoLogin(desktop());
        return;
    }
    if (platform::Form* open = desktop().find(window)) {
        if (!open->unload()) return;
    }
    auto* child = static_cast<screens::ChildScreen*>(touch(window));
    child->setParentRow(request);
    session::setFormAccess(*child, session_.gbCanEdit);
    child->fill();
    child->show();
}

// Workspace --------------------------------------------------------------------------------------------------------

platform::TreeView& MDIHost::tvTree() const {
    return panel_->tvTree();
}

void MDIHost::enableTree(bool enabled) {
    enable(tvTree(), enabled);
}

void MDIHost::refreshTree() {
    categories_.setAllImages();
}

void MDIHost::enableAddMember(bool enabled) {
    enable(panel_->cmdAddNew(), enabled);
}

void MDIHost::endFirstRun() {
    panel_->endFirstRun();
}

QString MDIHost::selectedName() const {
    return panel_->cbPerson().text();
}

void MDIHost::setSelectedName(const QString& name) {
    panel_->cbPerson().setText(name);
}

void MDIHost::appendName(const QString& name) {
    panel_->cbPerson().addItem(name);
}

void MDIHost::removeName(const QString& name) {
    platform::ComboBox& selector = panel_->cbPerson();
    const int entries = selector.listCount();
    // The entry behind a removed one moves up and is passed over.
    for (int i = 0; i < entries; ++i) {
        if (selector.list(i) == name) selector.removeEntry(i);
    }
}

void MDIHost::clearSelection() {
    panel_->cbPerson().setListIndex(-1);
    panel_->cbPerson().setFocus();
}

QString MDIHost::defaultOwner() const {
    if (const auto* screen = dynamic_cast<screens::PersonScreen*>(desktop().find(personScreen))) {
        return screen->legalName();
    }
    return session_.gPersonID != 0 ? session_.gsPersonName : QString();
}

// The way down -----------------------------------------------------------------------------------------------------

void MDIHost::showInventoryScreen(const session::ChildRequest& request) {
    openChild(u"frmInventory"_s, u"Inventory"_s, request);
}

void MDIHost::showImprovementsScreen(const session::ChildRequest& request) {
    openChild(u"frmImprovements"_s, u"Improvements"_s, request);
}

void MDIHost::showOutbuildingsScreen(const session::ChildRequest& request) {
    openChild(u"frmOutbuildings"_s, u"Outbuildings"_s, request);
}

void MDIHost::showCoverPage() {
    touch(u"frmCoverPage"_s)->fill();
}

void MDIHost::showAttachments(const QString& ownerName) {
    desktop().load(std::make_unique<attachments::AttachDialog>(desktop(), session_, ownerName)).showModal();
}

void MDIHost::showHelp() {
    session_.gbHelpOpened = true;
    if (!desktop().find(helpOwner)) {
        // Never shown; it counts among the loaded forms once help was used.
        desktop().load(
            std::make_unique<platform::FormWindow>(desktop(), helpOwner, platform::FormWindow::Kind::Window));
    }
    if (!help_)
        help_ = std::make_unique<HelpViewer>(platform::files::join(session_.path(u"HelpFiles"_s), u"Helper.hlp"_s));
    help_->open();
}

void MDIHost::showAbout() {
    desktop().load(std::make_unique<AboutDialog>(desktop(), session_)).showModal();
}

void MDIHost::exitProgram() {
    closeHost();
}

std::vector<platform::Form*> MDIHost::windowsToAsk() {
    std::vector<platform::Form*> windows;
    for (int i = desktop().count() - 1; i >= 0; --i) {
        if (&desktop().at(i) != this) windows.push_back(&desktop().at(i));
    }
    const bool asksActiveFirst = !onlyHelpIsOpen() && tvTree().isEnabled() && activeHasChanges();
    if (asksActiveFirst) windows.insert(windows.begin(), activeForm());
    return windows;
}

bool MDIHost::windowsAgreeToClose() {
    const std::vector<platform::Form*> windows = windowsToAsk();
    std::vector<session::DataWindow*> changed;
    for (platform::Form* form : windows) {
        auto* window = dynamic_cast<session::DataWindow*>(form);
        if (window && window->bChange) changed.push_back(window);
    }
    if (std::ranges::all_of(windows, &platform::Form::agreesToClose)) return true;
    // A Yes counts only when all of them go: the windows stay, and so does what is typed in them.
    for (session::DataWindow* window : changed)
        window->bChange = true;
    return false;
}

void MDIHost::closeHost() {
    if (isLoaded() && windowsAgreeToClose()) leave();
}

void MDIHost::Form_Unload() {
    if (help_) help_->close();
    for (int i = desktop().count() - 1; i >= 0; --i) {
        if (&desktop().at(i) != this) desktop().at(i).leave();
    }
}

}  // namespace app
