#include "platform/forms/mdi_frame.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>

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
    // When the active child goes, the one that was active before it comes to the front.
    area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation, false);
    setCentralWidget(centre_);
    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* frame) {
        showMenus();
        if (!frame) return;
        if (FormWindow* child = activeForm(); child && child->isLoaded())
            child->desktop().run([child] { child->Form_Activate(); });
    });
}

MdiFrame::~MdiFrame() {
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
    frame.showMaximized();
    area_->setActiveSubWindow(&frame);
    showMenus();
}

void MdiFrame::removeChild(QMdiSubWindow& frame) {
    frame.hide();
    area_->removeSubWindow(&frame);
    frame.deleteLater();
    showMenus();
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
