#pragma once

#include <memory>

#include "platform/print/print_device.h"

class QPrinter;

namespace platform {

/// The printer that the system has as its default, or its only one, with its own page. Among several without a default
/// the user chooses once a run.
class SystemPrintDevice : public PrintDevice {
public:
    [[nodiscard]] bool choose() override;
    [[nodiscard]] PageArea page() override;
    void send(const PrintJob& job, const QString& title) override;
    [[nodiscard]] std::unique_ptr<JobPages> begin(const QString& title) override;

private:
    [[nodiscard]] std::shared_ptr<QPrinter> printer() const;

    /// What the user chose, and how he set it up.
    std::shared_ptr<QPrinter> chosen_;
};

}  // namespace platform
