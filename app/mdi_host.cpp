#include "app/mdi_host.h"

#include <QGuiApplication>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <algorithm>

#include "app/about_dialog.h"
#include "app/book_chapters.h"
#include "app/help_viewer.h"
#include "app/host_panel.h"
#include "app/shown_rows.h"
#include "app/tree_pictures.h"
#include "attachments/attach_dialog.h"
#include "book/family_book_dialog.h"
#include "find/find_dialog.h"
#include "lists/coming_dates.h"
#include "platform/base/files.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/desktop.h"
#include "platform/forms/form_window.h"
#include "platform/forms/icons.h"
#include "platform/forms/menus.h"
#include "platform/forms/tree_view.h"
#include "session/data_window.h"
#include "session/session.h"
#include "session/window_menus.h"

using namespace Qt::StringLiterals;

namespace app {

MDIHost::MDIHost(platform::Desktop& desktop, session::Session& session)
    : MdiFrame(desktop, formName()),
      session_(session),
      panel_(new HostPanel(this)),
      rows_(session.gConnection),
      windows_(desktop, session, *this, rows_),
      categories_(panel_->tvTree(), session, rows_),
      selector_(*panel_, desktop, session, rows_, windows_, categories_),
      dispatch_(panel_->tvTree(), desktop, session, categories_, selector_, windows_),
      road_(desktop, *panel_, session, windows_, selector_, dispatch_),
      database_(desktop, session, selector_, windows_) {
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
    platform::addSeparator(*file, u"Sep5"_s);
    session::addFind(*file, handler([this] { showFind(); }));
    platform::addEntry(*file, u"mComing"_s, u"Coming Dates..."_s, handler([this] { showComingDates(); }));
    platform::addEntry(*file, u"mFamilyBook"_s, u"Family Book..."_s, handler([this] { showFamilyBook(); }));
    addMenu(file);

    QMenu* help = platform::makeMenu(*this, u"mnuHelp1"_s, u"&Help"_s);
    platform::addEntry(*help, u"mnuHelp"_s, u"Kinbook Help"_s, handler([this] { showHelp(); }));
    platform::addSeparator(*help, u"Sep3"_s);
    platform::addEntry(*help, u"mnuAbout"_s, u"About"_s, handler([this] { showAbout(); }));
    addMenu(help);
}

void MDIHost::connectControls() {
    setStops({&panel_->cbPerson(), &panel_->tvTree()});
    connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
            handler([this] { showHelp(); }));
    panel_->cbPerson().onClick(handler([this] { selector_.cbPerson_Click(); }));
    panel_->cbPerson().onEnter(handler([this] { selector_.cbPerson_Click(); }));
    panel_->cmdAddNew().onClick(handler([this] { selector_.cmdAddNew_Click(); }));
    panel_->onClick(handler([this] { dispatch_.picture1_Click(); }));
    panel_->tvTree().onNodeClick([this](int index) { desktop().run([&] { dispatch_.nodeClick(index); }); });
    panel_->tvTree().onToggle(handler([this] { dispatch_.nodeToggled(); }));
}

// Start ------------------------------------------------------------------------------------------------------------

void MDIHost::Form_Load() {
    desktop().attempt(u"MDIForm Load Error"_s, [this] {
        session_.gbAddMember = false;
        platform::TreeView& tree = panel_->tvTree();
        selector_.loadFamily();
        categories_.build();
        tree.expandNode(1);
        session_.gPersonID = 0;
        session_.gsPersonName = u"Family"_s;
        session_.gbWholeFamily = true;
        tree.setEnabled(false);
        tree.setImages(treePictures());
        categories_.setAllImages();
        if (panel_->cbPerson().listCount() < 2) {
            panel_->showFirstRun();
            panel_->cmdAddNew().setFocus();
        }
    });
}

void MDIHost::mFamilySequence_Click() {
    if (windows_.mayOpen(u"Person"_s)) windows_.touch(u"frmFamilySequence"_s)->show();
}

// Workspace --------------------------------------------------------------------------------------------------------

void MDIHost::enableTree(bool enabled) {
    panel_->enableTree(enabled);
}

void MDIHost::refreshTree() {
    categories_.setAllImages();
}

void MDIHost::enableAddMember(bool enabled) {
    panel_->enableAddMember(enabled);
}

void MDIHost::endFirstRun() {
    panel_->endFirstRun();
}

// The way down -----------------------------------------------------------------------------------------------------

void MDIHost::showInventoryScreen(const session::ChildRequest& request) {
    windows_.openChild(u"frmInventory"_s, u"Inventory"_s, request);
}

void MDIHost::showImprovementsScreen(const session::ChildRequest& request) {
    windows_.openChild(u"frmImprovements"_s, u"Improvements"_s, request);
}

void MDIHost::showOutbuildingsScreen(const session::ChildRequest& request) {
    windows_.openChild(u"frmOutbuildings"_s, u"Outbuildings"_s, request);
}

void MDIHost::showCoverPage() {
    windows_.touch(u"frmCoverPage"_s)->fill();
}

void MDIHost::showComingDates() {
    if (dispatch_.admitsClick()) windows_.touch(lists::ComingDates::formName())->show();
}

QString MDIHost::categoryOf(const QString& table) const {
    const auto all = shownRows();
    const auto shown = std::ranges::find_if(all, [&](const auto& rows) { return rows.table->name == table; });
    return shown == all.end() ? QString() : shown->category;
}

void MDIHost::showFamilyBook() {
    desktop()
        .load(std::make_unique<book::FamilyBookDialog>(desktop(), session_, bookChapters(), shownRows()))
        .showModal();
}

void MDIHost::showAttachments(const QString& ownerName) {
    desktop().load(std::make_unique<attachments::AttachDialog>(desktop(), session_, ownerName)).showModal();
}

void MDIHost::showFind() {
    const qint16 member = session_.gbWholeFamily ? qint16{0} : session_.gPersonID;
    auto& dialog = desktop().load(
        std::make_unique<find::FindDialog>(desktop(), session_.gConnection, shownRows(), member, sought_));
    dialog.showModal();
    sought_ = dialog.sought();
    if (const std::optional<session::Place> place = dialog.chosen()) goTo(*place);
}

void MDIHost::showHelp() {
    session_.gbHelpOpened = true;
    if (!desktop().find(HelpViewer::ownerName())) {
        // Never shown; it counts among the loaded forms once help was used.
        desktop().load(std::make_unique<platform::FormWindow>(desktop(), HelpViewer::ownerName(),
                                                              platform::FormWindow::Kind::Window));
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

void MDIHost::closeHost() {
    if (isLoaded() && windows_.agreeToClose(panel_->tvTree().isEnabled())) leave();
}

void MDIHost::Form_Unload() {
    if (help_) help_->close();
    for (int i = desktop().count() - 1; i >= 0; --i) {
        if (&desktop().at(i) != this) desktop().at(i).leave();
    }
}

}  // namespace app
