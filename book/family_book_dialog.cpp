#include "book/family_book_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <algorithm>

#include "book/family_book.h"
#include "output/print_failure.h"
#include "output/save_dialog.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/command_button.h"
#include "platform/forms/desktop.h"
#include "platform/print/device_in_use.h"
#include "platform/print/pdf_file.h"
#include "platform/print/print_device.h"
#include "session/book_files.h"
#include "session/owner_names.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace book {

namespace {

const QString errorTitle = u"Family Book Error"_s;
constexpr int nameCharacters = 40;

/// The whole family and its members, the selected ones first.
std::vector<session::Selection> choices(session::Session& session) {
    std::vector<session::Selection> all{{}};
    for (const session::Member& member : session::familyMembers(session.gConnection))
        all.push_back({member.name, member.id, false});
    const int selected = session.gbWholeFamily ? 0 : session.gPersonID;
    const auto first = std::ranges::find(all, selected, &session::Selection::personID);
    if (first != all.end()) std::rotate(all.begin(), first, first + 1);
    return all;
}

}  // namespace

FamilyBookDialog::FamilyBookDialog(platform::Desktop& desktop, session::Session& session, std::vector<Chapter> chapters,
                                   std::span<const session::ShownRows> shown)
    : FormWindow(desktop, u"frmFamilyBook"_s, Kind::Dialog),
      session_(session),
      chapters_(std::move(chapters)),
      shown_(shown),
      cbMember_(new platform::ComboBox(this)) {
    setCaption(u"Family Book"_s);
    cbMember_->setName(u"cbMember"_s);
    cbMember_->setMinimumWidth(fontMetrics().averageCharWidth() * nameCharacters);
    auto* rows = new QFormLayout(this);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    auto* label = new QLabel(u"&Book of:"_s, this);
    label->setBuddy(cbMember_);
    cbMember_->setAccessibleName(u"Book of:"_s);
    rows->addRow(label, cbMember_);
    auto* note = new QLabel(
        u"All records, the lists and the names of the attached files, with a table of contents.\n"
        "PINs and passwords are never in it."_s,
        this);
    note->setObjectName(u"lblNote"_s);
    rows->addRow(note);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    addButton(*buttons, u"cmdPrint"_s, u"&Print"_s, &FamilyBookDialog::cmdPrint_Click);
    setDefaultButton(addButton(*buttons, u"cmdSave"_s, u"&Save as PDF..."_s, &FamilyBookDialog::cmdSave_Click));
    setCancelButton(addButton(*buttons, u"cmdCancel"_s, u"&Cancel"_s, &FamilyBookDialog::cmdCancel_Click));
    rows->addRow(buttons);
}

platform::CommandButton* FamilyBookDialog::addButton(QHBoxLayout& row, const QString& name, const QString& caption,
                                                     void (FamilyBookDialog::*routine)()) {
    auto* button = new platform::CommandButton(this);
    button->setName(name);
    button->setText(caption);
    button->onClick(handler([this, routine] { (this->*routine)(); }));
    row.addWidget(button);
    return button;
}

void FamilyBookDialog::Form_Load() {
    selections_ = choices(session_);
    for (const session::Selection& selection : selections_)
        cbMember_->addItem(selection.name);
    cbMember_->setListIndex(0);
}

void FamilyBookDialog::withBook(const QString& purpose, void (FamilyBookDialog::*routine)(FamilyBook& book)) {
    // Two members may bear one name; a name that was typed stands for the first.
    const int chosen = cbMember_->listIndex();
    const auto selection = chosen >= 0 ? selections_.begin() + chosen
                                       : std::ranges::find(selections_, cbMember_->text(), &session::Selection::name);
    if (selection == selections_.end()) {
        desktop().notice(u"There is no family member of that name.  Select one from the list that drops down."_s,
                         u"No Matching Family Member"_s);
        cbMember_->setFocus();
        cbMember_->selectAll();
        return;
    }
    output::attemptPrint(desktop(), errorTitle, [&] {
        FamilyBook book(session_, *selection, chapters_, shown_);
        if (book.isEmpty()) return session::showNoEntries(desktop(), purpose);
        (this->*routine)(book);
    });
}

void FamilyBookDialog::tellStopped(const QString& outcome) {
    desktop().notice(u"You stopped the family book.  "_s + outcome, u"Family Book Stopped"_s);
}

void FamilyBookDialog::cmdPrint_Click() {
    withBook(u"print"_s, &FamilyBookDialog::print);
}

void FamilyBookDialog::print(FamilyBook& book) {
    platform::PrintDevice& device = platform::printDevice();
    if (!device.choose()) return;
    const platform::PageArea sheet = device.page();
    const std::unique_ptr<platform::JobPages> job = device.begin(book.title());
    const auto take = [&](const platform::PrintedPage& page) { job->add(page); };
    if (!book.layOut(sheet, take, u"Printing record %1 of %2"_s)) return tellStopped(u"Nothing was printed."_s);
    job->end();
    unload();
}

void FamilyBookDialog::cmdSave_Click() {
    withBook(u"save"_s, &FamilyBookDialog::save);
}

void FamilyBookDialog::save(FamilyBook& book) {
    const QString name = desktop().dialogs().fileDialog(output::pdfFileRequest(session_.applicationFolder));
    if (name.isEmpty()) return output::tellNoFileName(desktop());
    session::BookFiles{session_.applicationFolder}.refuse(name);
    platform::PdfFile file(name, book.title());
    const auto take = [&](const platform::PrintedPage& page) { file.add(page); };
    if (!book.layOut(platform::PdfFile::page(), take, u"Writing record %1 of %2"_s))
        return tellStopped(u"No file was saved."_s);
    file.setOutline(book.bookmarks());
    file.end();
    unload();
}

void FamilyBookDialog::cmdCancel_Click() {
    unload();
}

}  // namespace book
