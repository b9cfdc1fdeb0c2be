#pragma once

#include "platform/print/print_job.h"

class QPagedPaintDevice;

namespace platform {

/// The page of a device as it is set up.
[[nodiscard]] PageArea pageAreaOf(const QPagedPaintDevice& device);
/// Draws a job's pages on a device; error 482 when it takes none.
void paintJob(QPagedPaintDevice& device, const PrintJob& job);

}  // namespace platform
