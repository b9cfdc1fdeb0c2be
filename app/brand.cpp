#include "app/brand.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

#include "platform/base/files.h"

using namespace Qt::StringLiterals;

namespace app {

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
    line->addWidget(&productName);
    line->addWidget(&tradeMark, 0, Qt::AlignTop);
    line->addStretch(1);
    return line;
}

}  // namespace app
