#pragma once

#include "platform/print/print_job.h"

namespace platform {

/// A job that is handed on page by page, so that a long one is never held as a whole. Given up without end(), it leaves
/// nothing behind.
class JobPages {
public:
    JobPages() = default;
    virtual ~JobPages() = default;
    JobPages(const JobPages&) = delete;
    JobPages& operator=(const JobPages&) = delete;

    /// Throws what the device throws: 482 for one that takes no page, 61 for a full disk.
    virtual void add(const PrintedPage& page) = 0;
    /// Sends the job.
    virtual void end() = 0;
};

}  // namespace platform
