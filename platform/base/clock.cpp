#include "platform/base/clock.h"

#include <ctime>

namespace platform {

namespace {

const Clock*& clockInUse() {
    static const Clock computerClock;
    static const Clock* inUse = &computerClock;
    return inUse;
}

/// The toolkit's own call looks at the time zone's file each time, which a walk through many records would feel.
std::tm localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return local;
}

}  // namespace

QDate Clock::today() const {
    const std::tm local = localTime();
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

QDateTime Clock::now() const {
    const std::tm local = localTime();
    return {today(), QTime(local.tm_hour, local.tm_min, qMin(local.tm_sec, 59))};
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
