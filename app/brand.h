#pragma once

#include <QString>

class QHBoxLayout;
class QLabel;

// What the splash window and the About box have in common.

namespace app {

/// Shows a picture file in a label, scaled into a square of so many pixels; a file that isn't there or holds no picture
/// changes nothing.
void loadPicture(QLabel& label, const QString& path, int size);

void setLabelFont(QLabel& label, int points, bool bold);

/// The product's name with the trade mark sign on its top line, right behind it.
[[nodiscard]] QHBoxLayout* productLine(QLabel& productName, QLabel& tradeMark);

}  // namespace app
