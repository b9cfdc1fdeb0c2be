#pragma once

#include <memory>

#include "platform/print/print_job.h"

class QPageLayout;
class QPagedPaintDevice;
class QPainter;

namespace platform {

/// The page of a device as it is set up.
[[nodiscard]] PageArea pageAreaOf(const QPagedPaintDevice& device);
[[nodiscard]] PageArea areaOf(const QPageLayout& sheet);

/// Draws pages on a device, one after the other, at their pageScale(). Every character stands at its position on the
/// line, whichever font has it: what is too wide for its positions is drawn narrower. From the first character of a
/// line that runs from right to left on, the line is laid out in that direction, at its position.
class JobPainter {
public:
    /// Error 482 when the device takes no pages, here and below.
    explicit JobPainter(QPagedPaintDevice& device);
    ~JobPainter();
    JobPainter(const JobPainter&) = delete;
    JobPainter& operator=(const JobPainter&) = delete;

    void add(const PrintedPage& page);
    /// Behind the last page.
    void end();

private:
    QPagedPaintDevice& device_;
    std::unique_ptr<QPainter> painter_;
    bool begun_ = false;
};

/// Draws all pages of a job; error 482 when the device takes none.
void paintJob(QPagedPaintDevice& device, const PrintJob& job);

}  // namespace platform
