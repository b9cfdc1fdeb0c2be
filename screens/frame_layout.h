#pragma once

class QLabel;
class QVBoxLayout;
class QWidget;

namespace screens {

class FieldBoxes;
struct ScreenDefinition;

/// Stands the numbered controls of a screen in its frames, one below the other, in index order: two columns of boxes
/// with their labels right-aligned beside them; long texts take the whole width and the height that is left. The count
/// of attachments stands beside the very first box.
void layOutFrames(QWidget& page, QVBoxLayout& column, const ScreenDefinition& definition, const FieldBoxes& boxes,
                  QLabel& attachments);

}  // namespace screens
