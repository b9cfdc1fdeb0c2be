#include "output/grid_output.h"

#include "output/listing.h"
#include "output/listing_print.h"
#include "output/save_dialog.h"
#include "platform/base/clock.h"
#include "platform/base/text_writer.h"
#include "platform/forms/desktop.h"
#include "platform/print/device_in_use.h"
#include "platform/print/print_device.h"
#include "session/book_files.h"

namespace output {

void printGrid(platform::Desktop& desktop, const PrintableGrid& grid) {
    if (!platform::printDevice().choose()) return;
    const QDate today = platform::systemClock().today();
    ListingPrint print(desktop, listingTitle(grid, today), listingHeading(grid.columns));
    ListingPages pages([&](const ListingPages::Page& page) { print.printPage(page); });
    grid.walk([&](const QStringList& cells) { pages.addRow(listingLines(grid.columns, cells)); });
    pages.finish();
    print.end();
}

void saveGrid(platform::Desktop& desktop, const QString& applicationFolder,
              const std::function<PrintableGrid()>& grid) {
    const QString name = desktop.dialogs().fileDialog(textFileRequest(applicationFolder));
    if (name.isEmpty()) {
        tellNoFileName(desktop);
        return;
    }
    session::BookFiles{applicationFolder}.refuse(name);
    const QString document = gridDocument(grid(), platform::systemClock().today());
    platform::files::TextWriter file(name);
    file.writeLine(document);
    file.close();
}

}  // namespace output
