// A family book as a PDF file, against drawing the same lines of text on as many pages; and the memory that it takes.

#include <malloc.h>

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

#include "app/book_chapters.h"
#include "app/shown_rows.h"
#include "bench/running.h"
#include "book/family_book.h"
#include "platform/print/pdf_file.h"

using namespace bench;

namespace {

constexpr int fewRecords = 1'000;
constexpr int manyRecords = 10'000;

/// The most memory that the program has had since the last call, in MB.
double peakSinceLast() {
    double peak = 0;
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly)) std::exit(1);
    for (QByteArray line = status.readLine(); !line.isEmpty(); line = status.readLine()) {
        if (line.startsWith("VmHWM:")) peak = line.simplified().split(' ')[1].toDouble() / 1024;
    }
    QFile reset(u"/proc/self/clear_refs"_s);
    if (!reset.open(QIODevice::WriteOnly) || reset.write("5") != 1) std::exit(1);
    return peak;
}

/// Memory that a routine takes beyond what is taken when it begins, in MB.
template <class Routine>
double extraMemory(const Routine& routine) {
    malloc_trim(0);
    peakSinceLast();
    const double before = peakSinceLast();
    routine();
    return peakSinceLast() - before;
}

struct Made {
    platform::PrintJob pages{};
    double milliseconds = 0;
    double layingOut = 0;  ///< MB
    double bookmarks = 0;  ///< MB
};

void save(session::Session& session, const QString& name, Made& made) {
    book::FamilyBook book(session, session.selection(), app::bookChapters(), app::shownRows());
    platform::PdfFile file(name, book.title());
    const auto layOut = [&] {
        if (!book.layOut(
                platform::PdfFile::page(), [&](const platform::PrintedPage& page) { file.add(page); }, u"%1 %2"_s))
            std::exit(1);
    };
    made.layingOut = extraMemory(layOut);
    file.setOutline(book.bookmarks());
    made.bookmarks = extraMemory([&] { file.end(); });
}

Made makeBook(int records) {
    Running program(records, 1);
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"book.pdf"_s);
    Made made;
    // The first one loads fonts and libraries.
    save(program.session, name, made);
    made.milliseconds = milliseconds([&] { save(program.session, name, made); });
    book::FamilyBook book(program.session, program.session.selection(), app::bookChapters(), app::shownRows());
    const auto keep = [&](const platform::PrintedPage& page) { made.pages.push_back(page); };
    if (!book.layOut(platform::PdfFile::page(), keep, u"%1 %2"_s)) std::exit(1);
    std::printf("%d records: %zu pages, %.1f MB, %.1f s, %.1f MB of memory for the pages, %.1f MB for the bookmarks\n",
                records, made.pages.size(), static_cast<double>(QFileInfo(name).size()) / 1e6, made.milliseconds / 1000,
                made.layingOut, made.bookmarks);
    return made;
}

/// The lines as they stand, in one font.
double drawRaw(const platform::PrintJob& pages) {
    const QTemporaryDir folder;
    return milliseconds([&] {
        QPdfWriter writer(folder.filePath(u"raw.pdf"_s));
        QPainter painter(&writer);
        QFont font(u"Liberation Mono"_s, 10);
        font.setBold(true);
        painter.setFont(font);
        const double dots = writer.logicalDpiX() / 1440.0;
        for (const platform::PrintedPage& page : pages) {
            for (const platform::PrintedLine& line : page)
                painter.drawText(QPointF(line.x, line.y) * dots, line.text);
            writer.newPage();
        }
    });
}

}  // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const Made few = makeBook(fewRecords);
    const Made many = makeBook(manyRecords);
    report("Family book of 10,000 records", "ms", many.milliseconds, drawRaw(many.pages), 6);
    report("Family book of 10,000, against 1,000", "ms", many.milliseconds, few.milliseconds, 11);
    // A page is held, and what the writer of the file notes of each: where it lies.
    report("Memory for the pages of 10,000 records", "MB", many.layingOut, 1, 4);
    // They stand behind the pages, of which nothing is read but their numbers.
    report("Memory for the bookmarks of 10,000 records", "MB", many.bookmarks, 1, 1);
    return withinLimits() ? 0 : 1;
}
