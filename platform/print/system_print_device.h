#pragma once

#include "platform/print/print_device.h"

namespace platform {

/// The printer that the system has as its default, else the first that it has, with its own page.
class SystemPrintDevice : public PrintDevice {
public:
    [[nodiscard]] PageArea page() override;
    void send(const PrintJob& job) override;
};

}  // namespace platform
