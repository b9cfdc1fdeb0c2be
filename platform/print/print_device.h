#pragma once

#include <QString>
#include <memory>

#include "platform/print/job_pages.h"
#include "platform/print/print_job.h"

namespace platform {

/// Where print jobs go.
class PrintDevice {
public:
    PrintDevice() = default;
    virtual ~PrintDevice() = default;
    PrintDevice(const PrintDevice&) = delete;
    PrintDevice& operator=(const PrintDevice&) = delete;

    /// Lets the user choose where nothing tells which printer is meant; false if he chose none.
    [[nodiscard]] virtual bool choose() { return true; }
    /// Error 482 without a printer.
    [[nodiscard]] virtual PageArea page() = 0;
    /// Sends a whole job under a title; error 482 when it fails, with the words of the queue where it refuses the job.
    virtual void send(const PrintJob& job, const QString& title) = 0;
    /// Begins a job that may be too long to be held: its pages come one by one, and it is sent at its end.
    [[nodiscard]] virtual std::unique_ptr<JobPages> begin(const QString& title);
};

}  // namespace platform
