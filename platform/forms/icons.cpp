#include "platform/forms/icons.h"

#include <QApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace platform {

QIcon themeIcon(const QString& name) {
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    QIcon::setThemeName(dark ? u"breeze-dark"_s : u"breeze"_s);
    return QIcon::fromTheme(name);
}

}  // namespace platform
