// What record screens put on paper and into text files.

#include <QLabel>
#include <QScopeGuard>

#include "data/connection.h"
#include "output/printable_screen.h"
#include "output/record_output.h"
#include "platform/forms/check_box.h"
#include "platform/forms/desktop.h"
#include "platform/forms/text_control.h"
#include "platform/print/device_in_use.h"
#include "platform/print/print_device.h"
#include "screens/record_screen.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace screens {

output::PrintableScreen RecordScreen::printable() {
    output::PrintableScreen screen;
    screen.caption = caption();
    for (const auto& [index, text] : boxes_.texts())
        screen.fields.push_back({index, text.label->text(), text.box->text()});
    for (const FieldBoxes::Check& check : boxes_.checks())
        screen.checks.push_back({check.box->text(), check.box->value() != 0});
    screen.position = rows_.absolutePosition();
    screen.count = rows_.recordCount();
    return screen;
}

void RecordScreen::printRecord() {
    output::createPrintDoc(desktop(), printable());
}

bool RecordScreen::hasRecord() {
    if (rows_.hasCurrentRow()) return true;
    desktop().beep();
    return false;
}

bool RecordScreen::mayWalk() {
    if (bChange) {
        session::showScreenChanges(desktop());
        return false;
    }
    if (rows_.recordCount() > 0) return true;
    desktop().beep();
    return false;
}

void RecordScreen::mPrint_Click() {
    if (hasRecord() && platform::printDevice().choose()) printRecord();
}

void RecordScreen::mPrintAll_Click() {
    if (!mayWalk() || !platform::printDevice().choose()) return;
    output::printAll(
        desktop(), rows_.recordCount(), [this](const auto& visit) { walkAll(visit); }, [this] { printRecord(); });
}

void RecordScreen::mSave_Click() {
    if (!hasRecord()) return;
    output::saveFile(desktop(), session().applicationFolder, [this] { return printable(); });
}

void RecordScreen::mSaveAll_Click() {
    if (!mayWalk()) return;
    output::saveAll(
        desktop(), saveAllRequest(), [this](const auto& visit) { walkAllUnseen(visit); },
        [this] { return printable(); });
}

output::SaveAllRequest RecordScreen::saveAllRequest() {
    return {.folder = session().applicationFolder,
            .noFileTitle = u"No File Specified"_s,
            .noFileText = u"No file was specified.  No file was saved."_s,
            .count = rows_.recordCount()};
}

void RecordScreen::walkAll(const std::function<bool()>& visit) {
    const data::Connection::ReadHold hold(session().gConnection);
    bLastRecord_ = false;
    cmdFirst_Click();
    bool goesOn = true;
    while (goesOn) {
        // A screen whose rows can't be read any more never comes to its last one.
        goesOn = visit() && cmdNext_Click() && !bLastRecord_;
    }
    cmdFirst_Click();
}

void RecordScreen::walkAllUnseen(const std::function<bool()>& visit) {
    walking_ = true;
    boxes_.holdDisplay();
    boxes_.bindDates(&rows_);
    const auto end = qScopeGuard([this] {
        walking_ = false;
        boxes_.bindDates(nullptr);
        boxes_.showHeld();
        // A walk that failed half-way leaves the screen at the record that it had come to.
        setNumAttachments();
    });
    walkAll(visit);
}

}  // namespace screens
