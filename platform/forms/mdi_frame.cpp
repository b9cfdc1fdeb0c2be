#include "platform/forms/mdi_frame.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QShortcut>
#include <QSplitter>
#include <algorithm>
#include <utility>

#include "platform/forms/child_accessible.h"
#include "platform/forms/control.h"
#include "platform/forms/desktop.h"

namespace platform {

/// The room of the child windows, with a picture where there is none.
class MdiFrame::Area : public QMdiArea {
public:
    using QMdiArea::QMdiArea;

    QIcon picture;

protected:
    void paintEvent(QPaintEvent* event) override {
        QMdiArea::paintEvent(event);
        if (currentSubWindow()) return;
        QPainter painter(viewport());
        painter.setOpacity(faintness);
        const int side = std::min(viewport()->width(), viewport()->height()) / 2;
        QRect place(0, 0, side, side);
        place.moveCenter(viewport()->rect().center());
        // As an icon of this size, which is drawn once: every window that opens or closes paints the area anew.
        painter.drawPixmap(place.topLeft(), picture.pixmap(place.size(), devicePixelRatioF()));
    }

private:
    static constexpr qreal faintness = 0.18;
};

MdiFrame::MdiFrame(Desktop& desktop, const QString& name)
    : Form(desktop, name), centre_(new QSplitter(this)), area_(new Area(centre_)) {
    setObjectName(name);
    centre_->setChildrenCollapsible(false);
    area_->setBackground(palette().brush(QPalette::Window));
    area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation, false);
    area_->setFocusPolicy(Qt::NoFocus);
    setCentralWidget(centre_);
    connect(area_, &QMdiArea::subWindowActivated, this, &MdiFrame::childActivated);
    addKeys();
}

MdiFrame::~MdiFrame() {
    area_->disconnect(this);
    desktop().setHost(nullptr);
}

void MdiFrame::setPanel(QWidget& panel) {
    panel_ = &panel;
    centre_->insertWidget(0, &panel);
    centre_->setStretchFactor(0, 0);
    centre_->setStretchFactor(1, 1);
}

void MdiFrame::setEmptyPicture(const QIcon& picture) {
    area_->picture = picture;
}

void MdiFrame::show() {
    showMenus();
    // The records keep half of a small window.
    const int panel = std::min(panel_ ? panel_->sizeHint().width() : 0, width() / 2);
    centre_->setSizes({panel, width() - panel});
    QMainWindow::show();
    activateWindow();
    // What has the focus is seen from the start, before a key was pressed.
    setAttribute(Qt::WA_KeyboardFocusChange);
}

Form* MdiFrame::activeForm() const {
    const QMdiSubWindow* frame = area_->currentSubWindow();
    auto* child = frame ? dynamic_cast<Form*>(frame->widget()) : nullptr;
    return child && child->isLoaded() ? child : nullptr;
}

QMdiSubWindow* MdiFrame::addChild(QWidget& child) {
    // A frame measures its title anew at each of its many steps until it is up: meanwhile there is none.
    const QString title = child.windowTitle();
    child.setWindowTitle({});
    QMdiSubWindow* frame = area_->addSubWindow(&child);
    frame->setAttribute(Qt::WA_DeleteOnClose, false);
    // The press of a toolbar key would fall through to the frame, which takes the focus and gives it back: the
    // selection that the key is to copy would be gone.
    frame->setFocusPolicy(Qt::NoFocus);
    quietly([&] { frame->showMaximized(); });
    child.setWindowTitle(title);
    return frame;
}

void MdiFrame::bringToFront(QMdiSubWindow& frame) {
    arrange([&] {
        frame.showMaximized();
        area_->setActiveSubWindow(&frame);
    });
}

void MdiFrame::removeChild(QMdiSubWindow& frame, const std::function<void()>& unload) {
    std::erase(order_, &frame);
    if (front_ == &frame) front_ = nullptr;
    arrange([&] {
        unload();
        // The one that was in front before it comes to the front.
        if (area_->currentSubWindow() == &frame && !order_.empty()) area_->setActiveSubWindow(order_.back());
        frame.hide();
        area_->removeSubWindow(&frame);
    });
    frame.deleteLater();
}

void MdiFrame::quietly(const std::function<void()>& step) {
    const bool within = std::exchange(arranging_, true);
    step();
    arranging_ = within;
}

void MdiFrame::arrange(const std::function<void()>& step) {
    quietly(step);
    childActivated();
}

void MdiFrame::childActivated() {
    // While children are shown or taken away others are active for moments.
    if (arranging_) return;
    showMenus();
    Form* child = activeForm();
    QMdiSubWindow* frame = area_->currentSubWindow();
    if (!child) frontChanged();
    if (!child || frame == front_) return;
    tellFront(front_, frame);
    front_ = frame;
    frontChanged();
    std::erase(order_, frame);
    order_.push_back(frame);
    child->desktop().run([child] { child->Form_Activate(); });
}

// Keys -------------------------------------------------------------------------------------------------------------

void MdiFrame::addKeys() {
    new QShortcut(Qt::Key_F6, this, [this] { goRound(1); });
    new QShortcut(Qt::SHIFT | Qt::Key_F6, this, [this] { goRound(-1); });
    new QShortcut(Qt::Key_F10, this, [this] { openMenuBar(); });
}

void MdiFrame::goRound(int step) {
    std::vector<QWidget*> stops;
    for (QWidget* stop : stops_) {
        if (stop->isVisible() && stop->isEnabled()) stops.push_back(stop);
    }
    Form* child = activeForm();
    if (child) stops.push_back(&child->window());
    if (stops.empty()) return;
    const QWidget* focus = focusWidget();
    const auto holdsFocus = [focus](const QWidget* stop) { return stop == focus || stop->isAncestorOf(focus); };
    const auto here = std::ranges::find_if(stops, holdsFocus);
    const auto count = static_cast<int>(stops.size());
    // From elsewhere the way leads to the first stop, or to the last.
    const int from = here != stops.end() ? static_cast<int>(here - stops.begin()) : step > 0 ? -1 : 0;
    QWidget* next = stops[static_cast<std::size_t>((from + step + count) % count)];
    if (child && next == &child->window()) {
        child->takeFocus();
    } else {
        next->setFocus(Qt::TabFocusReason);
    }
}

void MdiFrame::openMenuBar() {
    const QList<QAction*> menus = menuBar()->actions();
    const auto usable = std::ranges::find_if(menus, &QAction::isEnabled);
    if (usable == menus.end()) return;
    menuBar()->setActiveAction(*usable);
    QMenu& menu = *(*usable)->menu();
    if (!menu.actions().isEmpty()) menu.setActiveAction(menu.actions().first());
}

bool MdiFrame::focusNextPrevChild(bool next) {
    const auto step = [next](const QWidget* widget) {
        return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    const QMdiSubWindow* front = area_->currentSubWindow();
    const QWidget* from = focusWidget() ? focusWidget() : this;
    for (QWidget* widget = step(from); widget != from; widget = step(widget)) {
        const bool isBehind = area_->isAncestorOf(widget) && !(front && front->isAncestorOf(widget));
        if (isBehind || !takesTab(*widget) || !widget->isVisible()) continue;
        widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

// Menus ------------------------------------------------------------------------------------------------------------

void MdiFrame::showMenus() {
    Form* owner = activeForm();
    if (owner && owner->menus().empty()) owner = nullptr;
    if (owner == menuOwner_ && !menuBar()->actions().isEmpty()) return;
    menuOwner_ = owner;
    menuBar()->clear();
    for (QMenu* menu : owner ? owner->menus() : menus())
        menuBar()->addMenu(menu);
}

void MdiFrame::closeEvent(QCloseEvent* event) {
    event->ignore();
    desktop().run([this] { closeHost(); });
}

}  // namespace platform
