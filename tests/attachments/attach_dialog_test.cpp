#include "attachments/attach_dialog.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include "platform/base/files.h"
#include "platform/forms/desktop.h"
#include "session/session.h"
#include "tests/attachments/application_folder.h"
#include "tests/support/program.h"
#include "tests/support/user.h"

using namespace Qt::StringLiterals;

namespace attachments {

namespace {

/// Nothing but the dialog, on the attachments of one record.
class DialogProgram : public support::Program {
public:
    /// `openedAs`: takes what the files that are opened are called by their user.
    DialogProgram(const QString& folder, bool canEdit, QStringList& openedAs) : openedAs_(openedAs) {
        session_.applicationFolder = folder;
        session_.gbCanEdit = canEdit;
        session_.gvAttachKey = u"Hom_3_17"_s;
        session_.gConnection.open(folder + u"/FamilyInfo.mdb"_s);
    }
    void main() override {
        desktop_.setFileOpener([this](const QString&, const QString& name) { openedAs_.append(name); });
        desktop_.load(std::make_unique<AttachDialog>(desktop_, session_, u"Ann Larkin"_s)).showModal();
    }
    [[nodiscard]] platform::Desktop& desktop() override { return desktop_; }
    [[nodiscard]] const session::Session* session() override { return &session_; }

private:
    session::Session session_;
    platform::Desktop desktop_;
    QStringList& openedAs_;
};

class DialogTest : public testing::Test {
protected:
    explicit DialogTest(bool canEdit = true)
        : user([this, canEdit] { return std::make_unique<DialogProgram>(folder.path(), canEdit, openedAs); }) {}

    void attach(const QString& name, const QString& description) {
        user.click(u"cmdAdd"_s);
        user.choose(folder.source(name));
        user.enter(description);
    }
    [[nodiscard]] QJsonArray rows() { return user.grid(u"lvAttach"_s)[u"rows"_s].toArray(); }
    [[nodiscard]] QString cell(int row, int column) { return rows()[row].toArray()[column].toString(); }
    /// Title and text of the box that is open, which is answered.
    [[nodiscard]] QString told() {
        const QJsonObject box = user.dialog();
        if (box[u"kind"_s] != u"message"_s) return u"no box"_s;
        user.answer(u"OK"_s);
        return box[u"title"_s].toString() + u": "_s + box[u"text"_s].toString();
    }

    ApplicationFolder folder;
    QStringList openedAs;
    support::User user;
};

class ReadOnlyDialogTest : public DialogTest {
protected:
    ReadOnlyDialogTest() : DialogTest(false) {}
};

TEST_F(DialogTest, AddsWithOrWithoutADescription) {
    user.start();
    EXPECT_EQ(user.text(u"lblBugNum"_s), u"Name:  Ann Larkin"_s);
    EXPECT_EQ(user.state()[u"focus"_s].toString(), u"lvAttach"_s);
    attach(u"the deed.pdf"_s, u"Ann's deed"_s);
    EXPECT_EQ(rows()[0].toArray(), (QJsonArray{u"Hom_3_17_0.pdf"_s, folder.stored({}), u"pdf"_s, u"Ann's deed"_s,
                                               u"the deed.pdf"_s, u"1"_s}));
    user.click(u"cmdAdd"_s);
    user.choose(folder.source(u"b.txt"_s));
    EXPECT_EQ(user.dialog()[u"title"_s].toString(), u"Attachment Description"_s);
    user.cancel();
    EXPECT_EQ(cell(1, 0), u"Hom_3_17_2.txt"_s);
    EXPECT_EQ(cell(1, 3), QString());
    user.click(u"cmdClose"_s);
    EXPECT_FALSE(user.state()[u"running"_s].toBool());
}

TEST_F(DialogTest, TheRowAddedOrEditedIsSelected) {
    const auto current = [this] { return user.grid(u"lvAttach"_s)[u"current"_s].toInt(); };
    user.start();
    attach(u"the deed.pdf"_s, u"First"_s);
    attach(u"the deed.pdf"_s, u"Second"_s);
    EXPECT_EQ(current(), 1);
    attach(u"the deed.pdf"_s, u"Third"_s);
    user.select(u"lvAttach"_s, 1);
    user.click(u"cmdEditDesc"_s);
    user.enter(u"Second, corrected"_s);
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(cell(1, 3), u"Second, corrected"_s);
}

TEST_F(DialogTest, AddsNothingWithoutAFile) {
    user.start();
    user.click(u"cmdAdd"_s);
    user.cancel();
    EXPECT_EQ(told(), u"Process Canceled: Process has been canceled.  No attachment was added."_s);
    user.click(u"cmdAdd"_s);
    user.choose({});
    EXPECT_EQ(told(), u"No Filename: No filename was entered. No attachment was added."_s);
    user.click(u"cmdAdd"_s);
    user.choose(u"gone.txt"_s);
    EXPECT_EQ(told(), u"Error in Add Process: 53 - File not found"_s);
    EXPECT_TRUE(rows().isEmpty());
    EXPECT_TRUE(folder.storedNames().isEmpty());
}

TEST_F(DialogTest, ActsOnNothingInAnEmptyList) {
    user.start();
    const struct {
        QString button, box;
    } cases[] = {
        {u"cmdView"_s, u"No Attachment: There is no attachment available to view."_s},
        {u"cmdCopy"_s, u"No Attachment: There is no attachment available to copy."_s},
        {u"cmdDelete"_s, u"No Attachment: There is no attachment available to delete."_s},
        {u"cmdEditDesc"_s, u"No Description: There is no description available to edit."_s},
    };
    for (const auto& [button, box] : cases) {
        user.click(button);
        EXPECT_EQ(told(), box);
    }
}

TEST_F(DialogTest, ViewsTheFileThatIsThere) {
    user.start();
    attach(u"a.txt"_s, u"first"_s);
    attach(u"b.docx"_s, u"second"_s);
    user.forgetNoises();
    user.select(u"lvAttach"_s, 1);
    user.click(u"cmdView"_s);
    user.popup(u"mnuView"_s);
    const QString path = folder.stored(u"Hom_3_17_2docx"_s);
    EXPECT_EQ(user.state()[u"opened"_s].toArray(), (QJsonArray{path, path}));
    EXPECT_EQ(openedAs, QStringList({u"b.docx"_s, u"b.docx"_s}));
    QFile::remove(path);
    QDir().mkpath(path);
    for (const QString& button : {u"cmdView"_s, u"cmdCopy"_s}) {
        user.click(button);
        EXPECT_EQ(told(), u"File Not Found: "_s + path + u" does not exist."_s);
    }
    EXPECT_EQ(user.state()[u"pointer"_s].toString(), u"normal"_s);
    EXPECT_EQ(user.state()[u"opened"_s].toArray().size(), 2);
}

TEST_F(DialogTest, CopiesOutAndRefusesAReadOnlyTarget) {
    user.start();
    attach(u"a.txt"_s, {});
    const QString target = folder.path() + u"/out.txt"_s;
    user.click(u"cmdCopy"_s);
    EXPECT_EQ(user.dialog()[u"title"_s].toString(), u"Save "_s + folder.stored(u"Hom_3_17_0.txt"_s) + u" As"_s);
    EXPECT_EQ(user.dialog()[u"file"_s].toString(), u"Hom_3_17_0.txt"_s);
    user.choose(target);
    EXPECT_EQ(folder.contentOf(target), "content");
    // The copy is as read-only as the stored file.
    user.click(u"cmdCopy"_s);
    user.choose(target);
    EXPECT_EQ(told(), u"Error in Copy Process: 70 - Permission deniedFile may be read only."_s);
    user.click(u"cmdCopy"_s);
    user.cancel();
    EXPECT_TRUE(user.dialog()[u"kind"_s] == u"form"_s);
}

TEST_F(DialogTest, CopyNeverTakesTheBooksPlaceAndLeavesAFileOfTheUsersWritable) {
    user.start();
    attach(u"a.txt"_s, {});
    attach(u"b.txt"_s, {});
    const QByteArray book = folder.contentOf(folder.database());
    const QString otherName = folder.path() + u"/other.txt"_s;
    QFile::link(folder.database(), otherName);
    for (const QString& target : {folder.database(), folder.path() + u"/Attachments/../FamilyInfo.mdb"_s, otherName,
                                  folder.path() + u"/FamilyInfo_Empty.mdb"_s, folder.stored(u"Hom_3_17_2.txt"_s)}) {
        user.click(u"cmdCopy"_s);
        user.choose(target);
        EXPECT_EQ(told(), u"Error in Copy Process: 70 - Permission deniedFile may be read only."_s)
            << target.toStdString();
    }
    EXPECT_EQ(folder.contentOf(folder.database()), book);
    EXPECT_FALSE(QFile::exists(folder.path() + u"/FamilyInfo_Empty.mdb"_s));
    const QString his = folder.source(u"his.txt"_s, "older");
    user.click(u"cmdCopy"_s);
    user.choose(his);
    EXPECT_EQ(folder.contentOf(his), "content");
    EXPECT_FALSE(platform::files::isReadOnly(his));
}

TEST_F(DialogTest, DeletesAfterAYes) {
    user.start();
    attach(u"a.txt"_s, {});
    user.click(u"cmdDelete"_s);
    user.answer(u"No"_s);
    EXPECT_EQ(rows().size(), 1);
    user.popup(u"mnuDelete"_s);
    EXPECT_EQ(user.dialog()[u"text"_s].toString(), u"Do you want to delete the highlighted attachment?"_s);
    user.answer(u"Yes"_s);
    EXPECT_TRUE(rows().isEmpty());
    EXPECT_TRUE(folder.storedNames().isEmpty());
}

TEST_F(DialogTest, EditsADescriptionButNotToOneWithAnApostrophe) {
    user.start();
    attach(u"a.txt"_s, u"old"_s);
    user.click(u"cmdEditDesc"_s);
    EXPECT_EQ(user.dialog()[u"value"_s].toString(), u"old"_s);
    user.enter(u"new"_s);
    EXPECT_EQ(cell(0, 3), u"new"_s);
    user.popup(u"mnuEditDesc"_s);
    user.enter(u"Ann's"_s);
    EXPECT_TRUE(told().startsWith(u"Kinbook: -2147217900 - "_s));
    EXPECT_EQ(cell(0, 3), u"new"_s);
    user.click(u"cmdEditDesc"_s);
    user.enter({});
    EXPECT_EQ(cell(0, 3), u"new"_s);
}

TEST_F(ReadOnlyDialogTest, OnlyViewsAndCopies) {
    user.start();
    for (const QString& button : {u"cmdAdd"_s, u"cmdDelete"_s, u"cmdEditDesc"_s}) {
        user.click(button);
        EXPECT_TRUE(told().startsWith(u"Invalid Login: "_s));
    }
    user.click(u"cmdView"_s);
    EXPECT_TRUE(told().startsWith(u"No Attachment: "_s));
}

}  // namespace

}  // namespace attachments
