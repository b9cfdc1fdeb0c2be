#pragma once

#include <QDate>

#include "platform/base/clock.h"

namespace platform {

/// Where it is always the same day.
class FixedClock : public Clock {
public:
    explicit FixedClock(const QDate& day) : day_(day) {}
    [[nodiscard]] QDate today() const override { return day_; }

private:
    QDate day_;
};

}  // namespace platform
