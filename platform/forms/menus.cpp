#include "platform/forms/menus.h"

#include <QAction>
#include <QMenu>

namespace platform {

QMenu* makeMenu(QWidget& form, const QString& name, const QString& caption) {
    auto* menu = new QMenu(caption, &form);
    menu->setObjectName(name);
    menu->menuAction()->setObjectName(name);
    return menu;
}

QAction* addEntry(QMenu& menu, const QString& name, const QString& caption, std::function<void()> handler) {
    QAction* entry = menu.addAction(caption);
    entry->setObjectName(name);
    QObject::connect(entry, &QAction::triggered, entry, [handler = std::move(handler)] { handler(); });
    return entry;
}

void addSeparator(QMenu& menu, const QString& name) {
    menu.addSeparator()->setObjectName(name);
}

}  // namespace platform
