#pragma once

namespace platform {

class PrintDevice;

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
