#include "app/brand.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <algorithm>

#include "platform/base/files.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {
constexpr qreal signScale = 0.45;
}

void loadPicture(QLabel& label, const QString& path, int size) {
    if (!platform::files::fileExists(path)) return;
    const QPixmap picture = QIcon(path).pixmap(size, size);
    if (picture.isNull()) return;
    label.setPixmap(picture);
    label.show();
}

void setLabelFont(QLabel& label, int points, bool bold) {
    QFont font = label.font();
    font.setPointSize(points);
    font.setBold(bold);
    label.setFont(font);
}

QHBoxLayout* productLine(QLabel& productName, QLabel& tradeMark) {
    tradeMark.setText(u"\u2122"_s);
    auto* line = new QHBoxLayout;
    line->setSpacing(1);
    // Set as a raised sign of the same type: its top at the height of the name's capitals.
    QFont font = productName.font();
    font.setPointSizeF(font.pointSizeF() * signScale);
    tradeMark.setFont(font);
    const QFontMetrics name = productName.fontMetrics();
    const QFontMetrics sign = tradeMark.fontMetrics();
    const int drop = (name.ascent() - name.capHeight()) - (sign.ascent() - sign.capHeight());
    tradeMark.setContentsMargins(0, std::max(0, drop), 0, 0);
    line->addWidget(&productName);
    line->addWidget(&tradeMark, 0, Qt::AlignTop);
    line->addStretch(1);
    return line;
}

}  // namespace app
