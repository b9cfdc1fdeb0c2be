#pragma once

#include <QDate>
#include <QDateTime>

namespace platform {

/// The local date and time: the one place where the program learns what day it is.
class Clock {
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual QDate today() const;
    /// To the second.
    [[nodiscard]] QDateTime now() const;
};

/// The clock in use: the computer's, unless a ClockInPlace stands for it.
[[nodiscard]] const Clock& systemClock();

/// Puts another clock in the place of the computer's for as long as it lives; the seam for tests. The clock must live
/// longer than this; the places nest.
class ClockInPlace {
public:
    explicit ClockInPlace(const Clock& clock);
    ~ClockInPlace();
    ClockInPlace(const ClockInPlace&) = delete;
    ClockInPlace& operator=(const ClockInPlace&) = delete;

private:
    const Clock* before_;
};

}  // namespace platform
