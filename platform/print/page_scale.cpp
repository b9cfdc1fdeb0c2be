#include "platform/print/page_scale.h"

#include <algorithm>

#include "platform/print/print_metrics.h"

namespace platform {

namespace {

// In twips. The number of a page stands ten inches down, a line of ten points high; a listing with a margin of ten
// positions, 77 of columns and a blank behind each of five of them is the widest.
constexpr double neededHeight = 14401 + lineHeight(10);
constexpr double neededWidth = 92 * positionWidth(10);
/// A device without a page to speak of still gets one.
constexpr double least = 0.1;

}  // namespace

double pageScale(const PageArea& sheet) {
    return std::clamp(std::min(sheet.scaleHeight / neededHeight, sheet.scaleWidth / neededWidth), least, 1.0);
}

}  // namespace platform
