#include "platform/print/system_print_device.h"

#include <cups/cups.h>

#include <QApplication>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryFile>

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

/// What the queue is to do with a job, as the toolkit tells it.
class QueueOptions {
public:
    explicit QueueOptions(const QPrinter& printer) {
        set("media", QPageSize(printer.pageLayout().pageSize()).key());
        if (printer.pageLayout().orientation() == QPageLayout::Landscape) set("landscape", {});
        if (printer.copyCount() > 1) set("copies", QString::number(printer.copyCount()));
        if (printer.copyCount() > 1 && printer.collateCopies()) set("Collate", u"True"_s);
        set("sides", sides(printer.duplex()));
    }
    ~QueueOptions() { cupsFreeOptions(count_, options_); }
    QueueOptions(const QueueOptions&) = delete;
    QueueOptions& operator=(const QueueOptions&) = delete;

    [[nodiscard]] int count() const { return count_; }
    [[nodiscard]] cups_option_t* all() const { return options_; }

private:
    static QString sides(QPrinter::DuplexMode mode) {
        if (mode == QPrinter::DuplexNone) return u"one-sided"_s;
        return mode == QPrinter::DuplexShortSide ? u"two-sided-short-edge"_s : u"two-sided-long-edge"_s;
    }
    void set(const char* name, const QString& value) {
        count_ = cupsAddOption(name, value.toUtf8().constData(), count_, &options_);
    }

    int count_ = 0;
    cups_option_t* options_ = nullptr;
};

/// A job that is drawn into a file of its own, which the queue gets when it is whole: of one that is given up the queue
/// never hears. The toolkit would send what there is of it.
class SpooledJob : public JobPages {
public:
    SpooledJob(std::shared_ptr<QPrinter> printer, QString title)
        : printer_(std::move(printer)),
          title_(std::move(title)),
          writer_(&opened(file_)),
          painter_(setUp(writer_, *printer_, title_)) {}

    void add(const PrintedPage& page) override {
        painter_.add(page);
        checkWritten();
    }

    void end() override {
        painter_.end();
        file_.flush();
        checkWritten();
        const QueueOptions options(*printer_);
        cupsPrintFile(printer_->printerName().toUtf8().constData(), QFile::encodeName(file_.fileName()).constData(),
                      title_.toUtf8().constData(), options.count(), options.all());
        checkAccepted();
    }

private:
    static QTemporaryFile& opened(QTemporaryFile& file) {
        if (!file.open()) throw RuntimeError(Error::DiskFull);
        return file;
    }
    static QPdfWriter& setUp(QPdfWriter& writer, const QPrinter& printer, const QString& title) {
        writer.setResolution(printer.resolution());
        writer.setTitle(title);
        writer.setPageLayout(printer.pageLayout());
        return writer;
    }
    void checkWritten() const {
        if (file_.error() != QFileDevice::NoError) throw RuntimeError(Error::DiskFull);
    }

    std::shared_ptr<QPrinter> printer_;
    QString title_;
    QTemporaryFile file_;
    QPdfWriter writer_;
    JobPainter painter_;
};

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

std::unique_ptr<JobPages> SystemPrintDevice::begin(const QString& title) {
    return std::make_unique<SpooledJob>(printer(), title);
}

}  // namespace platform
