#pragma once

#include "platform/print/print_job.h"

namespace platform {

/// Where print jobs go.
class PrintDevice {
public:
    PrintDevice() = default;
    virtual ~PrintDevice() = default;
    PrintDevice(const PrintDevice&) = delete;
    PrintDevice& operator=(const PrintDevice&) = delete;

    /// Error 482 without a printer.
    [[nodiscard]] virtual PageArea page() = 0;
    /// Sends a whole job; error 482 when it fails.
    virtual void send(const PrintJob& job) = 0;
};

/// The device in use: the system's printer, unless a PrintDeviceInPlace stands for it.
[[nodiscard]] PrintDevice& printDevice();

/// Puts another device in the place of the system's printer for as long as it lives; the seam for tests. The device
/// must live longer than this; the places nest.
class PrintDeviceInPlace {
public:
    explicit PrintDeviceInPlace(PrintDevice& device);
    ~PrintDeviceInPlace();
    PrintDeviceInPlace(const PrintDeviceInPlace&) = delete;
    PrintDeviceInPlace& operator=(const PrintDeviceInPlace&) = delete;

private:
    PrintDevice* before_;
};

}  // namespace platform
