#include "platform/forms/icons.h"

#include <QApplication>
#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QtMath>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

// Resources of a static library are known once they are asked for, which can't be done from within a namespace.
static void knowPictures() {
    Q_INIT_RESOURCE(icons);
}

namespace platform {

namespace {
const QString usualPlace = u"/usr/share/icons"_s;
constexpr qreal paleness = 0.3;
constexpr int drawnSize = 22;

class DrawnIcon : public QIconEngine {
public:
    explicit DrawnIcon(DrawPicture draw) : draw_(std::move(draw)), number_(++made_) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * paleness);
        draw_(*painter, rect);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        // Kept by what it depends on; drawing one anew for every window would take longer than the window.
        const QString key = u"kinbook %1 %2x%3 %4 %5"_s.arg(number_)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(mode)
                                .arg(QApplication::palette().cacheKey());
        QPixmap picture;
        if (QPixmapCache::find(key, &picture)) return picture;
        picture = QPixmap(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        painter.end();
        QPixmapCache::insert(key, picture);
        return picture;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIcon(*this); }

private:
    static inline int made_ = 0;

    DrawPicture draw_;
    int number_;  ///< of its own, and of its copies
};

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
    return drawnIcon([found = QIcon::fromTheme(name)](QPainter& painter, const QRectF& place) {
        // Always the drawing for this size, enlarged: those for larger ones show other things, or there are none.
        const int scale = std::max(1, qCeil(place.width() / drawnSize));
        const QPixmap drawing = found.pixmap(QSize(drawnSize, drawnSize), scale);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(place, drawing, drawing.rect());
    });
}

}  // namespace

QIcon drawnIcon(DrawPicture draw) {
    return QIcon(new DrawnIcon(std::move(draw)));
}

QIcon themeIcon(const QString& name) {
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    const QString theme = dark ? u"breeze-dark"_s : u"breeze"_s;
    QHash<QString, QIcon>& known = knownIcons(theme);
    if (!known.contains(name)) known.insert(name, lookedUp(theme, name));
    return known.value(name);
}

QIcon ownIcon(const QString& name) {
    QHash<QString, QIcon>& known = knownIcons(u"kinbook"_s);
    if (QIcon icon = known.value(name); !icon.isNull()) return icon;
    knowPictures();
    QFile file(u":/kinbook/%1.svg"_s.arg(name));
    const QByteArray picture = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    QIcon icon = drawnIcon([picture](QPainter& painter, const QRectF& place) {
        const QString ink = QApplication::palette().color(QPalette::ButtonText).name();
        QSvgRenderer(QByteArray(picture).replace("currentColor", ink.toLatin1())).render(&painter, place);
    });
    known.insert(name, icon);
    return icon;
}

}  // namespace platform
