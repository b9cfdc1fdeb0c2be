#include "tests/support/targets.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QStyleOptionComboBox>
#include <QToolBar>

#include "platform/forms/tree_view.h"
#include "tests/support/refused.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

/// The path of menus from a list of menus down to an entry; empty if it isn't in them.
std::vector<QAction*> findPath(const QList<QAction*>& entries, const QString& name) {
    for (QAction* entry : entries) {
        if (entry->objectName() == name && !entry->isSeparator()) return {entry};
        if (!entry->menu()) continue;
        std::vector<QAction*> path = findPath(entry->menu()->actions(), name);
        if (path.empty()) continue;
        path.insert(path.begin(), entry);
        return path;
    }
    return {};
}

void checkUsable(const std::vector<QAction*>& path, const QString& name) {
    if (path.empty()) throw Refused(u"the menu has no entry "_s + name);
    if (path.back()->menu()) throw Refused(name + u" is a menu, not an entry"_s);
    for (const QAction* entry : path) {
        if (!entry->isVisible()) throw Refused(entry->objectName() + u" is hidden"_s);
        if (!entry->isEnabled()) throw Refused(entry->objectName() + u" is disabled"_s);
    }
}

QWidget* toolButton(QAction& key) {
    const auto places = key.associatedObjects();
    for (QObject* place : places) {
        if (const auto* bar = qobject_cast<QToolBar*>(place)) return bar->widgetForAction(&key);
    }
    return nullptr;
}

}  // namespace

QComboBox& comboFor(QWidget& widget, const QString& entry) {
    auto* combo = qobject_cast<QComboBox*>(&widget);
    if (!combo) throw Refused(widget.objectName() + u" is no combo"_s);
    if (combo->findText(entry, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0) {
        throw Refused(u"%1 has no entry \"%2\""_s.arg(widget.objectName(), entry));
    }
    return *combo;
}

Spot spotOnArrow(QComboBox& combo) {
    static_cast<void>(spotOn(combo));
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    option.subControls = QStyle::SC_All;
    return spotAt(
        combo, combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &combo).center());
}

Spot spotOnRow(QAbstractItemView& view, const QModelIndex& index) {
    view.scrollTo(index);
    return spotAt(*view.viewport(), view.visualRect(index).center());
}

Spot spotOnEntry(const QAction& entry) {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu || !menu->actions().contains(&entry)) throw Refused(u"the menu did not open"_s);
    return spotAt(*menu, menu->actionGeometry(const_cast<QAction*>(&entry)).center());
}

/// A node's row, whose branch is open; a user can't click what isn't shown.
QTreeWidgetItem& shownNode(platform::TreeView& tree, const QString& key) {
    const int index = tree.indexOf(key);
    if (index == 0) throw Refused(u"the tree has no node "_s + key);
    if (!tree.isVisible()) throw Refused(u"the tree is hidden"_s);
    for (int above = tree.parentIndex(index); above != 0; above = tree.parentIndex(above)) {
        if (!tree.expanded(above)) throw Refused(u"%1 is inside the collapsed branch %2"_s.arg(key, tree.key(above)));
    }
    return *tree.node(index);
}

std::vector<QAction*> pathTo(const QList<QAction*>& entries, const QString& name) {
    std::vector<QAction*> path = findPath(entries, name);
    checkUsable(path, name);
    return path;
}

Spot spotOnKey(QAction* key, const QString& name) {
    QWidget* button = key ? toolButton(*key) : nullptr;
    if (!button) throw Refused(u"there is no toolbar key "_s + name);
    if (!key->isVisible() || !button->isVisible()) throw Refused(name + u" is hidden"_s);
    if (!key->isEnabled()) throw Refused(name + u" is disabled"_s);
    return spotOn(*button);
}

Spot spotOnText(platform::TreeView& tree, QTreeWidgetItem& item) {
    tree.scrollToItem(&item);
    const QRect row = tree.visualItemRect(&item);
    return spotAt(*tree.viewport(), QPoint(row.left() + tree.iconSize().width() + row.height() / 2, row.center().y()));
}

Spot spotOnSign(platform::TreeView& tree, QTreeWidgetItem& item) {
    tree.scrollToItem(&item);
    const QRect row = tree.visualItemRect(&item);
    return spotAt(*tree.viewport(), QPoint(row.left() - tree.indentation() / 2, row.center().y()));
}

}  // namespace support
