#include "app/tree_pictures.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPolygonF>

namespace app {

namespace {

constexpr qreal side = 16;

/// Drawn at the sizes that whole and double scales need.
template <class Draw>
QIcon icon(const Draw& draw) {
    QIcon made;
    for (const int scale : {1, 2, 3}) {
        QPixmap pixmap(static_cast<int>(side) * scale, static_cast<int>(side) * scale);
        pixmap.setDevicePixelRatio(scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter);
        made.addPixmap(pixmap);
    }
    return made;
}

}  // namespace

std::vector<QIcon> treePictures() {
    QColor line = QApplication::palette().color(QPalette::Text);
    line.setAlpha(150);
    const QColor filled(0x2e, 0x8b, 0x57);
    const QIcon empty = icon([&](QPainter& painter) {
        painter.setPen(QPen(line, 1.4));
        painter.drawEllipse(QRectF(3, 3, side - 6, side - 6));
    });
    const QIcon full = icon([&](QPainter& painter) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(filled);
        painter.drawEllipse(QRectF(1.5, 1.5, side - 3, side - 3));
        painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygonF{{4.8, 8.3}, {7.1, 10.6}, {11.3, 5.6}});
    });
    return {empty, full};
}

}  // namespace app
