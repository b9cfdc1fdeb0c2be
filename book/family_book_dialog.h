#pragma once

#include <span>
#include <vector>

#include "book/chapter.h"
#include "platform/forms/form_window.h"
#include "session/selection.h"

class QHBoxLayout;

namespace platform {
class ComboBox;
class CommandButton;
}  // namespace platform

namespace session {
struct Session;
struct ShownRows;
}  // namespace session

namespace book {

class FamilyBook;

/// Asks whose book is wanted, and prints it or saves it as a PDF file.
class FamilyBookDialog : public platform::FormWindow {
    Q_OBJECT

public:
    /// `shown`, which is kept, tells to which records files are attached.
    FamilyBookDialog(platform::Desktop& desktop, session::Session& session, std::vector<Chapter> chapters,
                     std::span<const session::ShownRows> shown);

    void Form_Load() override;

private:
    platform::CommandButton* addButton(QHBoxLayout& row, const QString& name, const QString& caption,
                                       void (FamilyBookDialog::*routine)());
    void cmdPrint_Click();
    void cmdSave_Click();
    void cmdCancel_Click();

    void print(FamilyBook& book);
    void save(FamilyBook& book);
    /// Hands the chosen book to a routine; tells what speaks against it. `purpose`: what is to be done with it.
    void withBook(const QString& purpose, void (FamilyBookDialog::*routine)(FamilyBook& book));
    /// Tells that the user gave the book up, and what has become of it.
    void tellStopped(const QString& outcome);

    session::Session& session_;
    std::vector<Chapter> chapters_;
    std::span<const session::ShownRows> shown_;
    platform::ComboBox* cbMember_;
    /// By the entries of the combo.
    std::vector<session::Selection> selections_;
};

}  // namespace book
