#include "output/record_output.h"

#include <utility>

#include "output/document.h"
#include "output/page_parts.h"
#include "output/print_failure.h"
#include "output/printable_screen.h"
#include "output/save_dialog.h"
#include "platform/base/clock.h"
#include "platform/base/files.h"
#include "platform/base/runtime_error.h"
#include "platform/base/text_writer.h"
#include "platform/forms/desktop.h"
#include "platform/forms/progress.h"
#include "platform/print/device_in_use.h"
#include "platform/print/printer.h"
#include "session/book_files.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

/// What a routine that writes a file is doing: a failure is told under the title of its step.
class Steps {
public:
    Steps(platform::Desktop& desktop, QString writing)
        : desktop_(desktop), writing_(std::move(writing)), title_(writing_) {}

    void run(const std::function<void()>& routine) {
        platform::Desktop::attempt(routine, [this](const platform::RuntimeError& error) {
            desktop_.notice(error.report(), title_, platform::Icon::Critical);
        });
    }

    /// The text of the record on screen.
    [[nodiscard]] QString createFileDoc(const std::function<PrintableScreen()>& screen) {
        title_ = u"CreateFileDoc Error"_s;
        QString document = fileDocument(screen(), platform::systemClock().today());
        title_ = writing_;
        return document;
    }

private:
    platform::Desktop& desktop_;
    QString writing_;
    QString title_;
};

void tellStopped(platform::Desktop& desktop, const platform::Progress& progress, const QString& title,
                 const QString& done) {
    desktop.notice(u"You stopped after %1 of %2 records.  The records up to there were %3."_s.arg(progress.done())
                       .arg(progress.total())
                       .arg(done),
                   title);
}

}  // namespace

void createPrintDoc(platform::Desktop& desktop, const PrintableScreen& screen) {
    attemptPrint(desktop, u"CreatePrintDoc Error"_s, [&] {
        const QString document = pageDocument(screen, platform::systemClock().today());
        platform::Printer printer(platform::printDevice(), jobTitle(screen));
        useDocumentFont(printer);
        printer.print(document);
        printer.endDoc();
    });
}

void printAll(platform::Desktop& desktop, int count, const RecordWalk& walk, const std::function<void()>& print) {
    platform::Progress progress(u"Print All"_s, u"Printing record %1 of %2"_s, count);
    walk([&] {
        print();
        return progress.step();
    });
    if (progress.isStopped()) tellStopped(desktop, progress, u"Print All Stopped"_s, u"printed"_s);
}

void saveFile(platform::Desktop& desktop, const QString& applicationFolder,
              const std::function<PrintableScreen()>& screen) {
    Steps steps(desktop, u"SaveFile Error"_s);
    steps.run([&] {
        const QString name = desktop.dialogs().fileDialog(textFileRequest(applicationFolder));
        if (platform::files::nameOf(name) == "SplashDef.txt"_L1) {
            desktop.notice(
                u"SplashDef.txt is a protected file.  You are not allowed to overwrite it.  Select a different "
                "filename and you will be able to save your file and proceed."_s,
                u"Protected File"_s);
            return;
        }
        if (name.isEmpty()) {
            tellNoFileName(desktop);
            return;
        }
        session::BookFiles{applicationFolder}.refuse(name);
        const QString document = steps.createFileDoc(screen);
        platform::files::TextWriter file(name);
        file.writeLine(document);
        file.close();
    });
}

void saveAll(platform::Desktop& desktop, const SaveAllRequest& request, const RecordWalk& walk,
             const std::function<PrintableScreen()>& screen) {
    Steps steps(desktop, u"SaveAll Error"_s);
    steps.run([&] {
        const QString name = desktop.dialogs().fileDialog(request.asksForText ? textFileRequest(request.folder)
                                                                              : saveRequest(request.folder));
        if (name.isEmpty()) {
            desktop.notice(request.noFileText, request.noFileTitle);
            return;
        }
        session::BookFiles{request.folder}.refuse(name);
        platform::files::TextWriter file(name);
        platform::Progress progress(u"Save All To File"_s, u"Saving record %1 of %2"_s, request.count);
        walk([&] {
            file.writeLine(steps.createFileDoc(screen) + u"\r\n\r\n"_s);
            return progress.step();
        });
        file.close();
        if (progress.isStopped()) tellStopped(desktop, progress, u"Save All Stopped"_s, u"saved"_s);
    });
}

}  // namespace output
