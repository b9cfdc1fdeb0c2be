#pragma once

#include "platform/print/print_job.h"

namespace platform {

/// The part of its size at which a page is drawn on a sheet, so that all of it lies within what the device prints on: 1
/// but for a sheet that is smaller than the lowest line and the widest listing need.
[[nodiscard]] double pageScale(const PageArea& sheet);

}  // namespace platform
