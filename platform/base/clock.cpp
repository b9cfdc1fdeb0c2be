#include "platform/base/clock.h"

#include <QTime>

namespace platform {

namespace {

const Clock*& clockInUse() {
    static const Clock computerClock;
    static const Clock* inUse = &computerClock;
    return inUse;
}

}  // namespace

QDate Clock::today() const {
    return QDate::currentDate();
}

double Clock::secondsSinceMidnight() const {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
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
