#include "platform/base/clock.h"

#include <ctime>

namespace platform {

namespace {

const Clock*& clockInUse() {
    static const Clock computerClock;
    static const Clock* inUse = &computerClock;
    return inUse;
}

}  // namespace

QDate Clock::today() const {
    // The toolkit's own call looks at the time zone's file each time, which a walk through many records would feel.
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

const Clock& systemClock() {
    return *clockInUse();
}

ClockInPlace::ClockInPlace(const Clock& clock) : before_(clockInUse()) {
    clockInUse() = &clock;
}

ClockInPlace::~ClockInPlace() {
    clockInUse() = before_;
}

}  // namespace platform
