#pragma once

#include <functional>
#include <memory>

namespace support {

/// Lets a second thread play the user of a program whose windows live in the application's thread.
///
/// The second thread hands over one thing to do at a time and waits. A gesture may set off a nested event loop, that of
/// a modal box for instance: it is still running then, far down the stack, while the box waits for the next gesture.
class GuiThread {
public:
    /// `settled` runs in the application's thread when no event waits; false means that the program is still at work.
    explicit GuiThread(std::function<bool()> settled);
    ~GuiThread();
    GuiThread(const GuiThread&) = delete;
    GuiThread& operator=(const GuiThread&) = delete;

    /// Whether the gesture leaves a key held down, for which a button may wait.
    enum class Keys { Up, Held };

    /// Runs a gesture and returns when the program waits for the next one. A refusal of the gesture comes out here; any
    /// other exception would have ended the real program, and ends this process by die(). Throws Refused when the
    /// program is not idle after two minutes.
    void act(std::function<void()> gesture, Keys keys = Keys::Up);
    /// Runs something that sets off no event, and returns when it is done.
    void look(std::function<void()> reading);

private:
    class Pulse;
    Pulse* pulse_;  ///< lives in the application's thread and is destroyed there
};

}  // namespace support
