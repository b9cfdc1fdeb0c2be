#pragma once

#include <QIcon>
#include <functional>

class QPainter;
class QRectF;

namespace platform {

/// Draws a picture into a rectangle.
using DrawPicture = std::function<void(QPainter&, const QRectF&)>;

/// An icon that is drawn anew for each size and scale it is shown at; disabled, it is clearly paler.
[[nodiscard]] QIcon drawnIcon(DrawPicture draw);

/// A picture of the installed icon theme, in its dark variant on a dark palette.
[[nodiscard]] QIcon themeIcon(const QString& name);

/// One of the program's own pictures, in the palette's colour: "clip", "text-file", "text-files", "archive",
/// "print-all", or its sign, "kinbook".
[[nodiscard]] QIcon ownIcon(const QString& name);

}  // namespace platform
