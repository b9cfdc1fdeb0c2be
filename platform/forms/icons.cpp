#include "platform/forms/icons.h"

#include <QApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace platform {

namespace {
const QString usualPlace = u"/usr/share/icons"_s;
}

QIcon themeIcon(const QString& name) {
    // Without a desktop to say where icons are installed (headless, or a bare X server) they are looked for where they
    // usually are.
    if (QStringList paths = QIcon::themeSearchPaths(); !paths.contains(usualPlace)) {
        paths.append(usualPlace);
        QIcon::setThemeSearchPaths(paths);
    }
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    QIcon::setThemeName(dark ? u"breeze-dark"_s : u"breeze"_s);
    return QIcon::fromTheme(name);
}

}  // namespace platform
