#include "platform/print/system_print_device.h"

#include <QPrinter>
#include <QPrinterInfo>
#include <memory>

#include "platform/base/runtime_error.h"
#include "platform/print/job_painter.h"

namespace platform {

namespace {

constexpr int noPrinter = 482;

std::unique_ptr<QPrinter> openPrinter() {
    QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) info = QPrinterInfo::availablePrinters().value(0);
    if (info.isNull()) throw RuntimeError(noPrinter);
    auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    const QPageSize own = info.defaultPageSize();
    printer->setPageSize(own.isValid() ? own : QPageSize(QPageSize::Letter));
    return printer;
}

}  // namespace

PageArea SystemPrintDevice::page() {
    return pageAreaOf(*openPrinter());
}

void SystemPrintDevice::send(const PrintJob& job) {
    paintJob(*openPrinter(), job);
}

}  // namespace platform
