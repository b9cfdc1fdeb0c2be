#pragma once

#include <QPointer>
#include <memory>
#include <optional>

#include "data/recordset.h"
#include "screens/field_boxes.h"
#include "screens/hidden_box.h"
#include "session/data_window.h"
#include "session/record_buttons.h"
#include "session/window_menus.h"

class QLabel;
class QScrollArea;

namespace output {
struct PrintableScreen;
struct SaveAllRequest;
}  // namespace output

namespace screens {

/// A window that shows one record at a time: the design that every record screen shares.
///
/// Its inputs are never locked for browsing. Typing raises bChange, and from then on the screen refuses to leave the
/// record until the user has gone through Edit and then Save or Cancel. Date boxes are bound only while a record comes
/// up, and written by hand on save, so that a half-typed date never reaches the record.
class RecordScreen : public session::DataWindow {
    Q_OBJECT

public:
    RecordScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                 const ScreenDefinition& definition, OwnerBox owner = OwnerBox::None);

    /// Presses the add button.
    void pressAdd();
    [[nodiscard]] bool standOn(qint64 record, const QString& column) override;
    /// Opens the child screen of the record on screen, by the name of its window, as its toolbar key does.
    void openChild(const QString& window);

    void show() override;
    [[nodiscard]] bool keyPreview() const override { return true; }
    bool Form_KeyDown(Qt::Key key, Qt::KeyboardModifiers held) override;
    void Form_KeyPress(int keyAscii) override;
    void Form_Unload() override;

protected:
    // Load, in the steps that the kinds of screens string together.
    void openRows(const QString& statement);
    void bindBoxes() { boxes_.bind(&rows_); }
    void fillStateCombos();
    void showStateCombos();
    /// A screen without rows begins in an add.
    void beginEmpty();
    /// Gives the box the focus as Tab does, its whole text selected; in a load, once the window comes up.
    void focusOn(QWidget& box);
    /// Gives the focus to the box of a column, or to the combo that stands for it.
    void focusOn(const QString& column);
    /// The first of the numbered boxes in which an add or an edit may begin.
    [[nodiscard]] virtual int firstTyped() const { return 0; }

    // Add, edit, save, cancel, delete. The steps in which a kind of screen differs are its overrides.
    void cmdAdd_Click();
    [[nodiscard]] virtual bool mayAdd() { return mayChange(); }
    virtual void beginAdd();
    void cmdEdit_Click();
    void cmdUpdate_Click();
    /// The name that no row goes without.
    [[nodiscard]] virtual QString requiredName() const;
    /// Tells what a save needs and doesn't have; false keeps the state.
    [[nodiscard]] virtual bool readyToSave();
    /// What a save does ahead of the columns that are written by hand.
    virtual void prepareSave();
    /// After the write of an add. False when the screen has gone.
    [[nodiscard]] virtual bool finishAdd();
    /// The rows are read anew after an add, and the first one is on screen.
    virtual void showAfterAdd() {}
    virtual void finishSave() {}
    void cmdCancel_Click();
    virtual void finishCancel() {}
    void cmdDelete_Click();
    /// Asks whether the record on screen is to go.
    [[nodiscard]] virtual bool confirmsDelete();
    [[nodiscard]] virtual QString deleteQuestion();
    virtual void deleteRecord() { deleteCurrentRow(); }
    /// Deletes the row on screen and goes on to its neighbour; fails when none is left.
    void deleteCurrentRow();
    /// The row on screen has gone from the file, and the screen hasn't gone on yet.
    virtual void rowDeleted() {}

    // Moves. Each ends with what the record on screen means to the session.
    void cmdFirst_Click();
    void cmdPrevious_Click();
    /// False when the move failed.
    bool cmdNext_Click();
    void cmdLast_Click();
    virtual void goFirst();
    virtual void goPrevious();
    virtual void goNext();
    virtual void goLast();
    virtual void goTo(double bookmark);
    void showPosition();
    /// Title under which a failure to show the position is reported.
    [[nodiscard]] virtual QString moveCompleteTitle() const { return QStringLiteral("MoveComplete Error"); }

    virtual void cmdClose_Click();
    /// Asks where there is something to lose; false if the window stays.
    [[nodiscard]] bool confirmsClosing();

    // Checks and aids at the boxes.
    [[nodiscard]] virtual bool validates(int box);
    [[nodiscard]] virtual bool validatesCombos() { return true; }
    virtual void cbFields_Click() { boxes_.copyShadows(); }

    /// Shows the files of the record on screen.
    virtual void mAttachments_Click();
    // Paper and text files.
    /// What the boxes and check boxes show at this moment.
    [[nodiscard]] output::PrintableScreen printable();
    virtual void printRecord();
    void mPrint_Click();
    void mPrintAll_Click();
    void mSave_Click();
    void mSaveAll_Click();
    /// How Save All asks for its file and tells that it got none.
    [[nodiscard]] virtual output::SaveAllRequest saveAllRequest();

    /// Makes the session's attachment key that of the record on screen, and counts its files; not where none are kept.
    virtual void setAttachKey();
    /// Shows how many files belong to the attachment key.
    void setNumAttachments();
    virtual void setButtons(bool browsing);
    /// Opens the child screen of a kind that the entry offers.
    virtual void showChild(ChildKind /*kind*/) {}
    /// Shows each record from the first through the last and visits it there, as long as that gives true; then goes
    /// back to the first.
    virtual void walkAll(const std::function<bool()>& visit);
    /// Opens the look-up recordset anew; it stays open.
    void lookUp(const QString& statement);

    /// Gives the screen its hidden txtID.
    void makeKeyBox();
    [[nodiscard]] HiddenBox& txtID() const { return *txtID_; }
    void placeOnTop(QWidget& row);
    [[nodiscard]] bool isBrowsing() const { return !bEditing_ && !bAdding_; }
    /// All records are being saved, one after the other; nobody sees them.
    [[nodiscard]] bool walking() const { return walking_; }

    [[nodiscard]] data::Recordset& rows() { return rows_; }
    [[nodiscard]] data::Recordset& rsLookup() { return rsLookup_; }
    [[nodiscard]] const FieldBoxes& boxes() const { return boxes_; }
    [[nodiscard]] FieldBoxes& boxes() { return boxes_; }
    [[nodiscard]] const ScreenDefinition& definition() const { return definition_; }
    void setLastRecord() { bLastRecord_ = true; }

private:
    void layOut();
    /// Puts the focus where the user goes on: in the first box that takes what is typed.
    void focusOnFirstTyped();
    void connectControls();
    [[nodiscard]] session::RecordActions actions();
    [[nodiscard]] session::WindowCommands commands();
    void moveComplete();
    [[nodiscard]] QString attachKey() const;
    /// False when the move failed.
    bool move(const QString& errorTitle, const std::function<void()>& step);
    /// False, with a beep, when there is no record to put out or to attach to: the last one was deleted.
    [[nodiscard]] bool hasRecord();
    /// True if all records may be put out one after the other; tells what speaks against it.
    [[nodiscard]] bool mayWalk();
    /// walkAll without drawing what is visited: only its texts are wanted.
    void walkAllUnseen(const std::function<bool()>& visit);

    const ScreenDefinition& definition_;
    data::Recordset rows_{data::Opening::Screen};
    data::Recordset rsLookup_;
    FieldBoxes boxes_;
    std::unique_ptr<session::WindowMenus> menus_;
    std::unique_ptr<session::RecordButtons> buttons_;
    QScrollArea* page_ = nullptr;
    QLabel* lblAttachments_ = nullptr;
    /// What the count reads when an add is cancelled; a new record has no files.
    QString countBesideAdd_;
    std::unique_ptr<HiddenBox> txtID_;
    QPointer<QWidget> focusWhenShown_;

    bool bEditing_ = false;
    bool bAdding_ = false;
    bool walking_ = false;
    /// Raised when cmdNext runs off the end: a walk over all records stops on it.
    bool bLastRecord_ = false;
    /// The record that was current when the last add began. Not cleared after use: a cancelled edit goes there too.
    std::optional<double> vBookmark_;
};

}  // namespace screens
