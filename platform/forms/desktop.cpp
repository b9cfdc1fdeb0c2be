#include "platform/forms/desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QThread>
#include <QWidget>
#include <algorithm>
#include <exception>

#include "platform/base/registered_program.h"
#include "platform/base/runtime_error.h"
#include "platform/base/unexpected_error.h"
#include "platform/forms/focus_guard.h"

using namespace Qt::StringLiterals;

namespace platform {

Desktop::Desktop()
    : dialogs_(std::make_unique<Dialogs>()),
      openFile_(openWithRegisteredProgram),
      guard_(std::make_unique<FocusGuard>(*this)) {
    QApplication::setQuitOnLastWindowClosed(false);
}

Desktop::~Desktop() {
    setPointer(Pointer::Default);
    while (!forms_.empty())
        forms_.pop_back();
}

void Desktop::setDialogs(std::unique_ptr<Dialogs> dialogs) {
    dialogs_ = std::move(dialogs);
}

void Desktop::take(std::unique_ptr<Form> form) {
    Form& loaded = *form;
    forms_.push_back(std::move(form));
    loaded.loaded_ = true;
    try {
        loaded.Form_Load();
    } catch (...) {
        if (loaded.loaded_) retire(loaded);
        throw;
    }
}

Form* Desktop::find(const QString& name) const {
    const auto found = std::ranges::find_if(forms_, [&](const auto& form) { return form->name() == name; });
    return found == forms_.end() ? nullptr : found->get();
}

void Desktop::unloadAll(const std::function<bool(const Form&)>& which) {
    for (int i = count() - 1; i >= 0; --i) {
        // An unload can take others along.
        if (i < count() && which(at(i))) at(i).unload();
    }
}

void Desktop::retire(Form& form) {
    form.loaded_ = false;
    const auto place = std::ranges::find_if(forms_, [&](const auto& held) { return held.get() == &form; });
    if (place == forms_.end()) return;
    std::unique_ptr<Form> held = std::move(*place);
    forms_.erase(place);
    form.window().hide();
    held.release()->destroyLater();
    if (forms_.empty()) Q_EMIT emptied();
}

void Desktop::notice(const QString& text) {
    notice(text, {}, Icon::None);
}

void Desktop::notice(const QString& text, const QString& title, Icon icon) {
    dialogs_->messageBox(text, icon, title, Buttons::Ok);
}

bool Desktop::ask(const QString& text, const QString& title, Buttons buttons) {
    return dialogs_->messageBox(text, Icon::None, title, buttons) == Answer::Yes;
}

bool Desktop::attempt(const QString& title, const std::function<void()>& routine) {
    return attempt(routine, [&](const RuntimeError& error) { notice(error.report(), title, Icon::Critical); });
}

bool Desktop::attempt(const std::function<void()>& routine, const std::function<void(const RuntimeError&)>& failed) {
    try {
        routine();
        return true;
    } catch (const std::exception& failure) {
        // Also what nobody foresaw ends its routine alone and not the session.
        failed(asRuntimeError(failure));
        return false;
    }
}

void Desktop::run(const std::function<void()>& handler) {
    try {
        attempt(Dialogs::programTitle(), handler);
    } catch (const RunEnded& end) {
        notice(end.words, end.title, Icon::Critical);
        endRun();
    }
}

void Desktop::passOver(const std::function<void()>& step) {
    platform::passOver(step);
}

void Desktop::setPointer(Pointer pointer) {
    if (pointer == pointer_) return;
    pointer_ = pointer;
    if (pointer == Pointer::Hourglass) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void Desktop::beep() {
    QApplication::beep();
    Q_EMIT beeped();
}

void Desktop::openFile(const QString& path, const QString& name) {
    openFile_(path, name);
    Q_EMIT fileOpened(path);
}

void Desktop::setClipboardText(const QString& text) {
    QApplication::clipboard()->setText(text);
}

QString Desktop::clipboardText() const {
    return QApplication::clipboard()->text();
}

void Desktop::wait(double seconds) {
    const qint64 length = skipsWaits_ ? 0 : static_cast<qint64>(seconds * 1000);
    QElapsedTimer timer;
    timer.start();
    waiting_ = true;
    do {
        QApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(5);
    } while (timer.elapsed() < length);
    waiting_ = false;
}

void Desktop::endRun() {
    for (int i = count() - 1; i >= 0; --i) {
        if (i < count()) at(i).leave();
    }
}

}  // namespace platform
