#include "platform/forms/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiSubWindow>

#include "platform/forms/command_button.h"
#include "platform/forms/desktop.h"
#include "platform/forms/mdi_frame.h"

namespace platform {

FormWindow::FormWindow(Desktop& desktop, const QString& name, Kind kind) : Form(desktop, name), kind_(kind) {
    setObjectName(name);
    if (kind == Kind::Dialog) setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
}

FormWindow::~FormWindow() = default;

void FormWindow::show() {
    if (kind_ != Kind::Child) {
        QWidget::show();
        raise();
        activateWindow();
        return;
    }
    const bool first = !frame_;
    if (first) frame_ = desktop().host()->addChild(*this);
    desktop().host()->bringToFront(*frame_);
    if (first) {
        focusFirstControl();
    } else if (!isAncestorOf(QApplication::focusWidget())) {
        takeFocus();
    }
}

void FormWindow::takeFocus() {
    QWidget* last = focusWidget();
    if (last && last->isVisible() && last->isEnabled()) {
        last->setFocus(Qt::OtherFocusReason);
    } else {
        focusFirstControl();
    }
}

void FormWindow::focusFirstControl() {
    for (QWidget* widget = nextInFocusChain(); widget && widget != this; widget = widget->nextInFocusChain()) {
        if (!takesTab(*widget) || !isAncestorOf(widget) || !widget->isVisibleTo(this)) continue;
        widget->setFocus(Qt::OtherFocusReason);
        return;
    }
}

void FormWindow::showModal() {
    setWindowModality(Qt::ApplicationModal);
    QWidget::show();
    activateWindow();
    // What has the focus is seen from the start, as in the host.
    setAttribute(Qt::WA_KeyboardFocusChange);
    QEventLoop loop;
    modalLoop_ = &loop;
    loop.exec();
    modalLoop_ = nullptr;
    if (!isLoaded()) destroyLater();
}

void FormWindow::destroyLater() {
    // The modal loop still runs in this very object; whoever showed the form may read it until his handler ends.
    if (!modalLoop_) deleteLater();
}

void FormWindow::leave() {
    if (!isLoaded()) return;
    // The frame takes this window along when it is destroyed, which is after the running event.
    if (frame_) {
        desktop().host()->removeChild(*frame_, [this] { Form::leave(); });
    } else {
        Form::leave();
    }
}

void FormWindow::closeEvent(QCloseEvent* event) {
    if (!isLoaded()) return;
    event->ignore();
    desktop().run([this] { unload(); });
}

void FormWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (modalLoop_ && !event->spontaneous()) modalLoop_->quit();
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
    CommandButton* button = nullptr;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        button = default_;
    } else if (event->key() == Qt::Key_Escape) {
        button = cancel_;
    }
    if (button && button->isEnabled()) {
        button->press();
    } else if (isDialog() && event->matches(QKeySequence::HelpContents) && desktop().host()) {
        // The host's own key doesn't reach into a dialog.
        desktop().run([this] { desktop().host()->showHelp(); });
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace platform
