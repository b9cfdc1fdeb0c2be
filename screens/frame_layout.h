#pragma once

#include <vector>

class QLabel;
class QVBoxLayout;
class QWidget;

namespace screens {

class FieldBoxes;
struct ScreenDefinition;

/// Stands the numbered controls of a screen in its frames, one below the other. All frames share their columns of
/// labels and boxes; the count of attachments stands behind the very first box. Returns the boxes and check boxes in
/// reading order.
[[nodiscard]] std::vector<QWidget*> layOutFrames(QWidget& page, QVBoxLayout& column, const ScreenDefinition& definition,
                                                 const FieldBoxes& boxes, QLabel& attachments);

}  // namespace screens
