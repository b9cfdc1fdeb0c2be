#include "platform/forms/progress.h"

#include <QApplication>
#include <QProgressDialog>
#include <utility>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int patience = 1000;  // milliseconds
/// Between two looks at the window, in milliseconds: a record takes a fraction of one.
constexpr int interval = 50;
/// Of the title, for what a desktop puts beside it.
constexpr int roomBesideTitle = 16;  // average characters

/// Behind another run the focus isn't back yet, and the window that asked for both is no active one.
QWidget* windowInFront() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

}  // namespace

Progress::Progress(const QString& title, QString what, int total)
    : what_(std::move(what)),
      total_(total),
      dialog_(std::make_unique<QProgressDialog>(QString(), u"Stop"_s, 0, total, windowInFront())) {
    dialog_->setObjectName(u"Progress"_s);
    dialog_->setWindowTitle(title);
    const QFontMetrics metrics = dialog_->fontMetrics();
    dialog_->setMinimumWidth(metrics.horizontalAdvance(title) + roomBesideTitle * metrics.averageCharWidth());
    dialog_->setWindowModality(Qt::ApplicationModal);
    dialog_->setMinimumDuration(patience);
    dialog_->setAutoReset(false);
    dialog_->setValue(0);
    sinceShown_.start();
}

Progress::~Progress() = default;

bool Progress::step() {
    ++done_;
    if (sinceShown_.elapsed() >= interval) show();
    stopped_ = stopped_ || (dialog_->wasCanceled() && done_ < total_);
    return !stopped_;
}

void Progress::show() {
    dialog_->setLabelText(what_.arg(done_).arg(total_));
    // Lets clicks on the button through, once the window is up.
    dialog_->setValue(done_);
    sinceShown_.restart();
}

}  // namespace platform
