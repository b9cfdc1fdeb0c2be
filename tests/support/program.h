#pragma once

#include <functional>
#include <memory>

namespace platform {
class Desktop;
}
namespace session {
struct Session;
}

namespace support {

/// The program that a user plays: made anew for each run, in the application's thread.
class Program {
public:
    Program() = default;
    virtual ~Program() = default;
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// Returns when the first window is up or the start was given up.
    virtual void main() = 0;
    [[nodiscard]] virtual platform::Desktop& desktop() = 0;
    /// The values of the run; nullptr for a program without any.
    [[nodiscard]] virtual const session::Session* session() = 0;
};

using MakeProgram = std::function<std::unique_ptr<Program>()>;

}  // namespace support
