#pragma once

#include <QColor>

namespace platform {

/// A colour between two: `share` of the second, from 0 to 1.
[[nodiscard]] inline QColor blended(const QColor& first, const QColor& second, qreal share) {
    const auto mixed = [share](float a, float b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(mixed(first.redF(), second.redF()), mixed(first.greenF(), second.greenF()),
                            mixed(first.blueF(), second.blueF()));
}

}  // namespace platform
