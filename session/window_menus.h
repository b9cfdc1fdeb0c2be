#pragma once

#include <QString>
#include <functional>
#include <vector>

class QAction;
class QIcon;
class QMenu;
class QToolBar;
class QWidget;

namespace session {

/// What opens a child screen: a menu entry and a key of the toolbar.
struct ChildCommand {
    QString name;  ///< of the child, "Inventory": the entry is mInventory, the key tbInventory
    QString icon;
    QString tooltip;
    std::function<void()> routine;
};

/// What the menus and the toolbar of a data window set off. An entry without a routine is there, but disabled; those of
/// attachments and of all records are left out of a window that has none.
struct WindowCommands {
    std::function<void()> newDatabase, restore, backup, coverPage, exit, familyBook;
    std::function<void()> copy, cut, paste, find;
    std::function<void()> attachments, print, printAll, save, saveAll;
    std::function<void()> comingDates;
    std::function<void()> help, about;
    std::vector<ChildCommand> children{};
    bool hasAttachments = true;
    bool hasAllRecords = true;
    QLatin1StringView saveAllHint{};  ///< tooltip of the key that saves all records
};

/// The entry that looks through the whole book, with its shortcut.
void addFind(QMenu& menu, const std::function<void()>& routine);

/// The menus and the toolbar of a data window; a key of the toolbar and its menu entry set off the same routine.
class WindowMenus {
public:
    WindowMenus(QWidget& form, const WindowCommands& commands);

    [[nodiscard]] const std::vector<QMenu*>& menus() const { return menus_; }
    [[nodiscard]] QToolBar& toolbar() const { return *toolbar_; }
    /// While a record is added or edited only the help menu can be used.
    void enable(bool enabled);

private:
    void makeFileMenu(QWidget& form, const WindowCommands& commands);
    void makeEditMenu(QWidget& form, const WindowCommands& commands);
    void makeOptionsMenu(QWidget& form, const WindowCommands& commands);
    void makeWindowMenu(QWidget& form);
    void makeHelpMenu(QWidget& form, const WindowCommands& commands);
    void addChildren(const std::vector<ChildCommand>& children);
    void addKey(const QString& key, const QIcon& icon, const QString& hint, const std::function<void()>& routine);

    std::vector<QMenu*> menus_;
    std::vector<QAction*> childEntries_;
    QMenu* options_ = nullptr;
    QToolBar* toolbar_;
};

}  // namespace session
