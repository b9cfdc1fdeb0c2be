#include "tests/support/mouse.h"

#include <QApplication>
#include <QCheckBox>
#include <QScrollArea>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>

#include "tests/support/refused.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

QString nameOf(const QWidget& widget) {
    return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : widget.objectName();
}

void scrollTo(QWidget& widget) {
    for (QWidget* around = widget.parentWidget(); around; around = around->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(&widget);
    }
}

QPoint middleOf(const QWidget& widget) {
    if (const auto* box = qobject_cast<const QCheckBox*>(&widget)) {
        QStyleOptionButton option;
        option.initFrom(box);
        return box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box).center();
    }
    return widget.visibleRegion().boundingRect().center();
}

}  // namespace

QWidget* topmostWindow() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* active = QApplication::activeWindow()) return active;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() && window->windowType() != Qt::ToolTip) return window;
    }
    return nullptr;
}

void checkNotBlocked(const QWidget& widget) {
    const QWidget* modal = QApplication::activeModalWidget();
    if (!modal) return;
    for (const QWidget* window = &widget; window; window = window->parentWidget()) {
        if (window == modal) return;
    }
    throw Refused(u"%1 is out of reach: %2 \"%3\" is open in front of it"_s.arg(nameOf(widget), nameOf(*modal),
                                                                                modal->windowTitle()));
}

Spot spotAt(QWidget& widget, const QPoint& position) {
    checkNotBlocked(widget);
    QWidget& window = *widget.window();
    const QPoint place = widget.mapTo(&window, position);
    const QWidget* hit = window.childAt(place);
    if (&widget != &window && hit != &widget && !widget.isAncestorOf(hit)) {
        throw Refused(u"%1 is covered by %2"_s.arg(nameOf(widget), nameOf(hit ? *hit : window)));
    }
    return {window.windowHandle(), place};
}

Spot spotOn(QWidget& widget) {
    scrollTo(widget);
    if (!widget.isVisible()) throw Refused(nameOf(widget) + u" is hidden"_s);
    if (!widget.isEnabled()) throw Refused(nameOf(widget) + u" is disabled"_s);
    checkNotBlocked(widget);
    if (widget.visibleRegion().isEmpty()) throw Refused(nameOf(widget) + u" is covered or out of sight"_s);
    return spotAt(widget, middleOf(widget));
}

void press(const Spot& spot, Qt::MouseButton button) {
    QTest::mouseMove(spot.window, spot.position);
    // A window manager brings the window that is clicked to the front.
    const bool behind =
        spot.window && spot.window->type() != Qt::Popup && QGuiApplication::focusWindow() != spot.window;
    if (behind && !QApplication::activePopupWidget()) spot.window->requestActivate();
    if (spot.window) QTest::mousePress(spot.window, button, {}, spot.position);
}

void pressTwice(const Spot& spot) {
    QTest::mouseMove(spot.window, spot.position);
    QTest::mouseDClick(spot.window, Qt::LeftButton, {}, spot.position);
}

void letGo(const Spot& spot, Qt::MouseButton button) {
    if (spot.window) QTest::mouseRelease(spot.window, button, {}, spot.position);
}

}  // namespace support
