#include "tests/support/gui_thread.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QThread>
#include <QTimerEvent>
#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <vector>

#include "tests/support/death.h"
#include "tests/support/refused.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

constexpr std::chrono::minutes patience{2};
/// Turns of the event loop in a row without an event, after which nothing more is to come by itself.
constexpr int quietTurns = 4;
/// An accelerator holds its button down for a moment before it clicks.
constexpr qint64 longestPress = 1000;

/// One thing that the second thread waits for.
struct Task {
    std::function<void()> work;
    bool waitsForIdle = false;
    bool keyHeld = false;

    std::mutex guard;
    std::condition_variable ended;
    bool over = false;
    std::exception_ptr failure;

    void finish() {
        {
            const std::lock_guard lock(guard);
            over = true;
        }
        ended.notify_all();
    }
};

}  // namespace

/// The end in the application's thread: runs the work and takes the pulse of whichever event loop is running.
class GuiThread::Pulse : public QObject {
public:
    explicit Pulse(std::function<bool()> settled) : settled_(std::move(settled)) {
        moveToThread(QApplication::instance()->thread());
        QMetaObject::invokeMethod(
            this, [this] { qApp->installEventFilter(this); }, Qt::QueuedConnection);
    }

    void begin(const std::shared_ptr<Task>& task) {
        waiting_ = task->waitsForIdle ? task : nullptr;
        watch();
        if (task->waitsForIdle) running_.push_back(QThread::currentThread()->loopLevel());
        try {
            task->work();
        } catch (const Refused&) {
            task->failure = std::current_exception();
        } catch (const std::exception& failure) {
            // What an event threw has gone through the toolkit's event loop, which the real program doesn't survive.
            if (task->waitsForIdle) die(QString::fromUtf8(failure.what()));
            task->failure = std::current_exception();
        }
        if (task->waitsForIdle) running_.pop_back();
        if (!task->waitsForIdle) task->finish();
    }

    bool eventFilter(QObject* receiver, QEvent* /*event*/) override {
        if (receiver != this) quiet_ = 0;
        return false;
    }

protected:
    void timerEvent(QTimerEvent* /*event*/) override {
        if (!inEventLoop() || !settled_() || pressing()) quiet_ = 0;
        if (++quiet_ <= quietTurns) return;
        killTimer(timer_);
        timer_ = 0;
        if (const auto task = std::exchange(waiting_, nullptr)) task->finish();
    }

private:
    void watch() {
        quiet_ = 0;
        pressed_.start();
        if (waiting_ && timer_ == 0) timer_ = startTimer(0);
    }

    /// False while a gesture merely lets events through on its way: it goes on by itself.
    [[nodiscard]] bool inEventLoop() const {
        const int level = QThread::currentThread()->loopLevel();
        return std::ranges::all_of(running_, [level](int base) { return level > base; });
    }

    [[nodiscard]] bool pressing() const {
        if (!waiting_ || waiting_->keyHeld || pressed_.elapsed() > longestPress ||
            QApplication::mouseButtons() != Qt::NoButton)
            return false;
        const QWidget* focus = QApplication::focusWidget();
        const auto* button = qobject_cast<const QAbstractButton*>(focus);
        return button && button->isDown();
    }

    std::function<bool()> settled_;
    std::shared_ptr<Task> waiting_;
    std::vector<int> running_;  ///< loop level at which each gesture that has not returned yet was begun
    QElapsedTimer pressed_;
    int timer_ = 0;
    int quiet_ = 0;
};

namespace {

void waitFor(Task& task) {
    std::unique_lock lock(task.guard);
    if (!task.ended.wait_for(lock, patience, [&] { return task.over; })) {
        throw Refused(u"the program is still at work after two minutes"_s);
    }
    if (task.failure) std::rethrow_exception(task.failure);
}

std::shared_ptr<Task> makeTask(std::function<void()> work, bool waitsForIdle) {
    auto task = std::make_shared<Task>();
    task->work = std::move(work);
    task->waitsForIdle = waitsForIdle;
    return task;
}

}  // namespace

GuiThread::GuiThread(std::function<bool()> settled) : pulse_(new Pulse(std::move(settled))) {}

GuiThread::~GuiThread() {
    look([this] { qApp->removeEventFilter(pulse_); });
    pulse_->deleteLater();
}

void GuiThread::act(std::function<void()> gesture, Keys keys) {
    const auto task = makeTask(std::move(gesture), true);
    task->keyHeld = keys == Keys::Held;
    QMetaObject::invokeMethod(
        pulse_, [pulse = pulse_, task] { pulse->begin(task); }, Qt::QueuedConnection);
    waitFor(*task);
}

void GuiThread::look(std::function<void()> reading) {
    const auto task = makeTask(std::move(reading), false);
    QMetaObject::invokeMethod(
        pulse_, [pulse = pulse_, task] { pulse->begin(task); }, Qt::QueuedConnection);
    waitFor(*task);
}

}  // namespace support
