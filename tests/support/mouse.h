#pragma once

#include <QPoint>
#include <QPointer>
#include <QWindow>

class QWidget;

namespace support {

/// A place in a window that the mouse can be put on.
struct Spot {
    QPointer<QWindow> window;
    QPoint position;
};

/// The middle of what is to be seen of a control, its indicator for a check box; scrolls it into view first. Throws
/// Refused if it is hidden, disabled, or covered by another control or by a modal window.
[[nodiscard]] Spot spotOn(QWidget& widget);
/// A place within a widget, which may be disabled: the press reaches what lies behind it then.
[[nodiscard]] Spot spotAt(QWidget& widget, const QPoint& position);

/// Moves the mouse to the spot and presses the button.
void press(const Spot& spot, Qt::MouseButton button = Qt::LeftButton);
/// Moves the mouse to the spot and clicks there twice, quickly enough for a double click.
void pressTwice(const Spot& spot);
/// Lets go of the button; nothing if the window is gone.
void letGo(const Spot& spot, Qt::MouseButton button = Qt::LeftButton);

/// The window that the user has in front: an open menu or list, a modal window, or the active one; nullptr for none.
[[nodiscard]] QWidget* topmostWindow();
/// Throws Refused if a modal window keeps the user from the widget.
void checkNotBlocked(const QWidget& widget);

}  // namespace support
