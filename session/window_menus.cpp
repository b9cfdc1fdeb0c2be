#include "session/window_menus.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QToolBar>

#include "platform/forms/icons.h"
#include "platform/forms/menus.h"

using namespace Qt::StringLiterals;

namespace session {

namespace {

void entry(QMenu& menu, const QString& name, const QString& caption, const std::function<void()>& routine) {
    QAction* made = platform::addEntry(
        menu, name, caption, routine ? routine : [] {});
    made->setEnabled(static_cast<bool>(routine));
}

}  // namespace

void addFind(QMenu& menu, const std::function<void()>& routine) {
    platform::addEntry(menu, u"mFind"_s, u"Find..."_s, routine)->setShortcut(QKeySequence::Find);
}

WindowMenus::WindowMenus(QWidget& form, const WindowCommands& commands) : toolbar_(new QToolBar(&form)) {
    makeFileMenu(form, commands);
    makeEditMenu(form, commands);
    makeOptionsMenu(form, commands);
    makeWindowMenu(form);
    makeHelpMenu(form, commands);

    toolbar_->setObjectName(u"Toolbar1"_s);
    const int side = form.fontMetrics().height() * 3 / 2;
    toolbar_->setIconSize({side, side});
    addKey(u"tbNew"_s, platform::themeIcon(u"document-new"_s), u"New database"_s, commands.newDatabase);
    addKey(u"tbOpen"_s, platform::themeIcon(u"document-open"_s), u"Restore database"_s, commands.restore);
    addKey(u"tbBackup"_s, platform::ownIcon(u"archive"_s), u"Backup database"_s, commands.backup);
    toolbar_->addSeparator();
    addKey(u"tbCopy"_s, platform::themeIcon(u"edit-copy"_s), u"Copy highlighted text"_s, commands.copy);
    addKey(u"tbCut"_s, platform::themeIcon(u"edit-cut"_s), u"Cut highlighted text"_s, commands.cut);
    addKey(u"tbPaste"_s, platform::themeIcon(u"edit-paste"_s), u"Paste highlighted text"_s, commands.paste);
    toolbar_->addSeparator();
    addKey(u"tbPrint"_s, platform::themeIcon(u"document-print"_s), u"Print screen"_s, commands.print);
    if (commands.hasAllRecords)
        addKey(u"tbPrintAll"_s, platform::ownIcon(u"print-all"_s), u"Print all screens"_s, commands.printAll);
    toolbar_->addSeparator();
    if (commands.hasAttachments)
        addKey(u"tbAttach"_s, platform::ownIcon(u"clip"_s), u"View/save attachments"_s, commands.attachments);
    addKey(u"tbSave"_s, platform::ownIcon(u"text-file"_s), u"SaveToFile"_s, commands.save);
    if (commands.hasAllRecords)
        addKey(u"tbSaveAll"_s, platform::ownIcon(u"text-files"_s), commands.saveAllHint, commands.saveAll);
    if (!commands.children.empty()) addChildren(commands.children);
    platform::addSeparator(*options_, u"Sep5"_s);
    entry(*options_, u"mComing"_s, u"Coming Dates..."_s, commands.comingDates);
}

void WindowMenus::makeFileMenu(QWidget& form, const WindowCommands& commands) {
    QMenu* menu = platform::makeMenu(form, u"mFile"_s, u"&File"_s);
    entry(*menu, u"mNew"_s, u"New"_s, commands.newDatabase);
    entry(*menu, u"mOpen"_s, u"Restore"_s, commands.restore);
    entry(*menu, u"mBackup"_s, u"Backup"_s, commands.backup);
    platform::addSeparator(*menu, u"Sep1"_s);
    entry(*menu, u"mCoverPage"_s, u"Cover Page"_s, commands.coverPage);
    platform::addSeparator(*menu, u"Sep4"_s);
    entry(*menu, u"mExit"_s, u"Exit"_s, commands.exit);
    platform::addSeparator(*menu, u"Sep5"_s);
    entry(*menu, u"mFamilyBook"_s, u"Family Book..."_s, commands.familyBook);
    menus_.push_back(menu);
}

void WindowMenus::makeEditMenu(QWidget& form, const WindowCommands& commands) {
    QMenu* menu = platform::makeMenu(form, u"mEdit"_s, u"&Edit"_s);
    entry(*menu, u"mCopy"_s, u"Copy"_s, commands.copy);
    entry(*menu, u"mCut"_s, u"Cut"_s, commands.cut);
    entry(*menu, u"mPaste"_s, u"Paste"_s, commands.paste);
    platform::addSeparator(*menu, u"Sep6"_s);
    addFind(*menu, commands.find);
    menus_.push_back(menu);
}

void WindowMenus::makeOptionsMenu(QWidget& form, const WindowCommands& commands) {
    QMenu* menu = platform::makeMenu(form, u"mOptions"_s, u"&Options"_s);
    if (commands.hasAttachments) entry(*menu, u"mAttachments"_s, u"Attachments"_s, commands.attachments);
    entry(*menu, u"mPrint"_s, u"Print"_s, commands.print);
    if (commands.hasAllRecords) entry(*menu, u"mPrintAll"_s, u"Print All"_s, commands.printAll);
    entry(*menu, u"mSave"_s, u"Save To File"_s, commands.save);
    if (commands.hasAllRecords) entry(*menu, u"mSaveAll"_s, u"Save All To File"_s, commands.saveAll);
    menus_.push_back(menu);
    options_ = menu;
}

void WindowMenus::makeWindowMenu(QWidget& form) {
    QMenu* menu = platform::makeMenu(form, u"mWindow"_s, u"&Window"_s);
    // The list of open windows is made anew each time it is looked at.
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, &form] {
        menu->clear();
        const auto* frame = qobject_cast<QMdiSubWindow*>(form.parentWidget());
        QMdiArea* area = frame ? frame->mdiArea() : nullptr;
        const auto frames = area ? area->subWindowList() : QList<QMdiSubWindow*>();
        for (QMdiSubWindow* window : frames) {
            QAction* line = menu->addAction(window->windowTitle().replace(u'&', u"&&"_s));
            line->setCheckable(true);
            line->setChecked(window == frame);
            QObject::connect(line, &QAction::triggered, area, [area, window] { area->setActiveSubWindow(window); });
        }
    });
    menus_.push_back(menu);
}

void WindowMenus::makeHelpMenu(QWidget& form, const WindowCommands& commands) {
    QMenu* menu = platform::makeMenu(form, u"mnuHelp1"_s, u"&Help"_s);
    entry(*menu, u"mnuHelp"_s, u"Contents and Index"_s, commands.help);
    entry(*menu, u"mnuAbout"_s, u"About"_s, commands.about);
    menus_.push_back(menu);
}

void WindowMenus::addChildren(const std::vector<ChildCommand>& children) {
    platform::addSeparator(*options_, u"Sep2"_s);
    toolbar_->addSeparator();
    for (const ChildCommand& child : children) {
        entry(*options_, u'm' + child.name, child.name, child.routine);
        childEntries_.push_back(options_->actions().last());
        addKey(u"tb"_s + child.name, platform::themeIcon(child.icon), child.tooltip, child.routine);
    }
}

void WindowMenus::addKey(const QString& key, const QIcon& icon, const QString& hint,
                         const std::function<void()>& routine) {
    QAction* made = toolbar_->addAction(icon, hint);
    made->setObjectName(key);
    made->setEnabled(static_cast<bool>(routine));
    if (routine) QObject::connect(made, &QAction::triggered, made, [routine] { routine(); });
    // A key of the toolbar leaves the focus where it is.
    toolbar_->widgetForAction(made)->setFocusPolicy(Qt::NoFocus);
}

void WindowMenus::enable(bool enabled) {
    toolbar_->setEnabled(enabled);
    for (QMenu* menu : menus_) {
        if (menu->objectName() != u"mnuHelp1"_s) menu->menuAction()->setEnabled(enabled);
    }
    for (QAction* child : childEntries_)
        child->setEnabled(enabled);
}

}  // namespace session
