#include "platform/print/print_device.h"

#include <utility>

namespace platform {

namespace {

/// The job of a device that takes it whole.
class HeldJob : public JobPages {
public:
    HeldJob(PrintDevice& device, QString title) : device_(device), title_(std::move(title)) {}

    void add(const PrintedPage& page) override { job_.push_back(page); }
    void end() override { device_.send(job_, title_); }

private:
    PrintDevice& device_;
    QString title_;
    PrintJob job_;
};

}  // namespace

std::unique_ptr<JobPages> PrintDevice::begin(const QString& title) {
    return std::make_unique<HeldJob>(*this, title);
}

}  // namespace platform
