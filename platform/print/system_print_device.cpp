#include "platform/print/system_print_device.h"

#include <cups/cups.h>

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include "platform/base/runtime_error.h"
#include "platform/print/job_painter.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

std::shared_ptr<QPrinter> openPrinter() {
    QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) info = QPrinterInfo::availablePrinters().value(0);
    if (info.isNull()) throw RuntimeError(Error::NoPrinter);
    auto printer = std::make_shared<QPrinter>(info, QPrinter::HighResolution);
    const QPageSize own = info.defaultPageSize();
    printer->setPageSize(own.isValid() ? own : QPageSize(QPageSize::Letter));
    return printer;
}

/// The toolkit hands the finished job to the queue and drops the answer, which the queue's own library keeps.
void checkAccepted() {
    if (cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE)
        throw RuntimeError(Error::NoPrinter, QString::fromUtf8(cupsLastErrorString()));
}

}  // namespace

bool SystemPrintDevice::choose() {
    const bool isClear = chosen_ || !QPrinterInfo::defaultPrinter().isNull();
    if (isClear || QPrinterInfo::availablePrinterNames().size() < 2) return true;
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    QPrintDialog dialog(printer.get(), QApplication::activeWindow());
    dialog.setObjectName(u"PrintDialog"_s);
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    if (dialog.exec() != QDialog::Accepted) return false;
    chosen_ = printer;
    return true;
}

std::shared_ptr<QPrinter> SystemPrintDevice::printer() const {
    return chosen_ ? chosen_ : openPrinter();
}

PageArea SystemPrintDevice::page() {
    return pageAreaOf(*printer());
}

void SystemPrintDevice::send(const PrintJob& job, const QString& title) {
    const std::shared_ptr<QPrinter> device = printer();
    device->setDocName(title);
    paintJob(*device, job);
    checkAccepted();
}

}  // namespace platform
