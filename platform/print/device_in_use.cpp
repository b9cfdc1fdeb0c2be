#include "platform/print/device_in_use.h"

#include <utility>

#include "platform/print/system_print_device.h"

namespace platform {

namespace {

/// nullptr for the system's printer.
PrintDevice*& deviceInPlace() {
    static PrintDevice* device = nullptr;
    return device;
}

}  // namespace

PrintDevice& printDevice() {
    static SystemPrintDevice system;
    return deviceInPlace() ? *deviceInPlace() : system;
}

PrintDeviceInPlace::PrintDeviceInPlace(PrintDevice& device) : before_(std::exchange(deviceInPlace(), &device)) {}

PrintDeviceInPlace::~PrintDeviceInPlace() {
    deviceInPlace() = before_;
}

}  // namespace platform
