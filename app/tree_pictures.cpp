#include "app/tree_pictures.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QPolygonF>

#include "platform/forms/icons.h"

namespace app {

namespace {

/// The square that the pictures are described in.
constexpr qreal side = 16;

/// Brings a picture that is described in the square to its place.
platform::DrawPicture placed(void (*draw)(QPainter&)) {
    return [draw](QPainter& painter, const QRectF& place) {
        painter.translate(place.topLeft());
        painter.scale(place.width() / side, place.height() / side);
        draw(painter);
    };
}

void drawEmpty(QPainter& painter) {
    QColor line = QApplication::palette().color(QPalette::Text);
    line.setAlpha(150);
    painter.setPen(QPen(line, 1.4));
    painter.drawEllipse(QRectF(3, 3, side - 6, side - 6));
}

void drawFull(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x2e, 0x8b, 0x57));
    painter.drawEllipse(QRectF(1.5, 1.5, side - 3, side - 3));
    painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF{{4.8, 8.3}, {7.1, 10.6}, {11.3, 5.6}});
}

}  // namespace

std::vector<QIcon> treePictures() {
    return {platform::drawnIcon(placed(drawEmpty)), platform::drawnIcon(placed(drawFull))};
}

}  // namespace app
