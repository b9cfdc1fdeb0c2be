#pragma once

#include <QJsonArray>
#include <QString>

#include "platform/print/device_in_use.h"
#include "platform/print/print_device.h"

namespace support {

/// A printer that writes pages, Letter unless KINBOOK_DRIVE_SHEET tells another sheet, into PDF files and keeps what it
/// was sent; none at first.
class WatchedPrinter : public platform::PrintDevice {
public:
    WatchedPrinter() : place_(*this) {}

    /// The next job goes into this file, those behind it into "NAME-2.pdf" and so on; "none" takes the printer away.
    void use(const QString& file);
    /// The jobs since the last call.
    [[nodiscard]] QJsonArray takeJobs();

    [[nodiscard]] platform::PageArea page() override;
    void send(const platform::PrintJob& job, const QString& title) override;

private:
    [[nodiscard]] QString nextFile();

    QString file_;
    int sent_ = 0;
    std::vector<platform::PrintJob> jobs_;
    platform::PrintDeviceInPlace place_;
};

}  // namespace support
