#include "platform/forms/mdi_frame.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <utility>

#include "platform/forms/desktop.h"
#include "platform/forms/form_window.h"

namespace platform {

MdiFrame::MdiFrame(Desktop& desktop, const QString& name)
    : Form(desktop, name), centre_(new QWidget(this)), area_(new QMdiArea(centre_)) {
    setObjectName(name);
    auto* layout = new QHBoxLayout(centre_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(area_, 1);
    area_->setBackground(palette().brush(QPalette::Window));
    area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation, false);
    setCentralWidget(centre_);
    connect(area_, &QMdiArea::subWindowActivated, this, &MdiFrame::childActivated);
}

MdiFrame::~MdiFrame() {
    area_->disconnect(this);
    desktop().setHost(nullptr);
}

void MdiFrame::setPanel(QWidget& panel) {
    auto* layout = static_cast<QHBoxLayout*>(centre_->layout());
    layout->insertWidget(0, &panel);
}

void MdiFrame::show() {
    showMenus();
    QMainWindow::show();
    activateWindow();
}

FormWindow* MdiFrame::activeForm() const {
    const QMdiSubWindow* frame = area_->currentSubWindow();
    auto* child = frame ? dynamic_cast<FormWindow*>(frame->widget()) : nullptr;
    return child && child->isLoaded() ? child : nullptr;
}

QMdiSubWindow* MdiFrame::addChild(FormWindow& child) {
    QMdiSubWindow* frame = area_->addSubWindow(&child);
    frame->setAttribute(Qt::WA_DeleteOnClose, false);
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

void MdiFrame::arrange(const std::function<void()>& step) {
    const bool within = std::exchange(arranging_, true);
    step();
    arranging_ = within;
    childActivated();
}

void MdiFrame::childActivated() {
    // While children are shown or taken away others are active for moments.
    if (arranging_) return;
    showMenus();
    FormWindow* child = activeForm();
    QMdiSubWindow* frame = area_->currentSubWindow();
    if (!child || frame == front_) return;
    front_ = frame;
    std::erase(order_, frame);
    order_.push_back(frame);
    child->desktop().run([child] { child->Form_Activate(); });
}

void MdiFrame::focusNextChild() {
    area_->activateNextSubWindow();
}

void MdiFrame::showMenus() {
    FormWindow* owner = activeForm();
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
