#pragma once

#include <QString>
#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace platform {

/// A menu of a form; the entry's name is its objectName.
[[nodiscard]] QMenu* makeMenu(QWidget& form, const QString& name, const QString& caption);
/// An entry of a menu.
QAction* addEntry(QMenu& menu, const QString& name, const QString& caption, std::function<void()> handler);
/// A separator with a name.
void addSeparator(QMenu& menu, const QString& name);

}  // namespace platform
