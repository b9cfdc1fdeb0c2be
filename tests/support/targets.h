#pragma once

#include <QList>
#include <vector>

#include "tests/support/mouse.h"

class QAbstractItemView;
class QAction;
class QComboBox;
class QModelIndex;
class QTreeWidgetItem;

namespace platform {
class TreeView;
}

namespace support {

// Where gestures aim. Each throws Refused if there is no such place to be seen.

/// The combo that a control is, if its list has the entry.
[[nodiscard]] QComboBox& comboFor(QWidget& widget, const QString& entry);
[[nodiscard]] Spot spotOnArrow(QComboBox& combo);
/// The middle of a row's cell, which is scrolled into view.
[[nodiscard]] Spot spotOnRow(QAbstractItemView& view, const QModelIndex& index);

/// The menus that lead to an entry, and the entry. All of them can be used.
[[nodiscard]] std::vector<QAction*> pathTo(const QList<QAction*>& entries, const QString& name);
/// An entry of the menu that is open.
[[nodiscard]] Spot spotOnEntry(const QAction& entry);
/// A toolbar's key.
[[nodiscard]] Spot spotOnKey(QAction* key, const QString& name);

/// A node's item; one inside a collapsed branch can't be clicked.
[[nodiscard]] QTreeWidgetItem& shownNode(platform::TreeView& tree, const QString& key);
/// The text of a node.
[[nodiscard]] Spot spotOnText(platform::TreeView& tree, QTreeWidgetItem& item);
/// The sign that opens and closes a branch.
[[nodiscard]] Spot spotOnSign(platform::TreeView& tree, QTreeWidgetItem& item);

}  // namespace support
