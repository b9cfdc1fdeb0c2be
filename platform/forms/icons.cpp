#include "platform/forms/icons.h"

#include <QApplication>
#include <QHash>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace platform {

namespace {
const QString usualPlace = u"/usr/share/icons"_s;

/// The icons of one theme by name. A theme's icon is looked for in many folders and drawn from a description each time
/// that it is asked for, which took half of a window's opening; kept, it is drawn once.
QHash<QString, QIcon>& knownIcons(const QString& theme) {
    static QHash<QString, QHash<QString, QIcon>> themes;
    static const bool emptiedAtTheEnd = [] {
        qAddPostRoutine([] { themes.clear(); });
        return true;
    }();
    Q_UNUSED(emptiedAtTheEnd)
    return themes[theme];
}

QIcon lookedUp(const QString& theme, const QString& name) {
    // Without a desktop to say where icons are installed (headless, or a bare X server) they are looked for where they
    // usually are.
    if (QStringList paths = QIcon::themeSearchPaths(); !paths.contains(usualPlace)) {
        paths.append(usualPlace);
        QIcon::setThemeSearchPaths(paths);
    }
    QIcon::setThemeName(theme);
    return QIcon::fromTheme(name);
}

}  // namespace

QIcon themeIcon(const QString& name) {
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    const QString theme = dark ? u"breeze-dark"_s : u"breeze"_s;
    QHash<QString, QIcon>& known = knownIcons(theme);
    if (!known.contains(name)) known.insert(name, lookedUp(theme, name));
    return known.value(name);
}

}  // namespace platform
