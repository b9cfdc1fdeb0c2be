#pragma once

#include "platform/print/print_job.h"

class QPagedPaintDevice;

namespace platform {

/// The page of a device as it is set up.
[[nodiscard]] PageArea pageAreaOf(const QPagedPaintDevice& device);
/// Draws a job's pages on a device, at their pageScale(); error 482 when it takes none. Every character stands at its
/// position on the line, whichever font has it: what is too wide for its positions is drawn narrower. From the first
/// character of a line that runs from right to left on, the line is laid out in that direction, at its position.
void paintJob(QPagedPaintDevice& device, const PrintJob& job);

}  // namespace platform
