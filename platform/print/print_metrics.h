#pragma once

namespace platform {

constexpr double twipsPerPoint = 20;
/// Of the font's size: the width that all its characters have, and the way from one line to the next.
constexpr double positionShare = 0.6;
constexpr double lineShare = 1.1328125;

/// Twips that a character is wide in a font of so many points.
[[nodiscard]] constexpr double positionWidth(double points) {
    return positionShare * points * twipsPerPoint;
}
/// Twips from one line of a font of so many points to the next.
[[nodiscard]] constexpr double lineHeight(double points) {
    return lineShare * points * twipsPerPoint;
}

}  // namespace platform
