#pragma once

#include <memory>

#include "data/recordset.h"
#include "lists/edit_dialog.h"
#include "lists/grid_window.h"
#include "lists/list_definition.h"

class QLabel;

namespace lists {

/// A window that shows a whole table in a grid and edits its rows in a small modal dialog.
///
/// The row that is selected in the grid is the recordset's current one. After an edit or a cancel that is the first
/// row, after an add the last.
class ListScreen : public GridWindow {
    Q_OBJECT

public:
    /// `definition` is kept; it has to live longer than the window.
    ListScreen(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
               const ListDefinition& definition);

    void Form_Load() override;
    bool Form_KeyDown(Qt::Key key, Qt::KeyboardModifiers held) override;
    void Form_Unload() override;
    /// The grid has the focus, whichever the column.
    [[nodiscard]] bool standOn(qint64 record, const QString& column) override;

protected:
    // The steps in which a kind of list differs.
    [[nodiscard]] virtual QString selectStatement() const;
    [[nodiscard]] virtual std::unique_ptr<EditDialog> makeDialog() = 0;
    /// The rows were read, for the first time or anew.
    virtual void prepareRows() {}
    /// The list closes, and nobody looks at its rows any more.
    virtual void restRows() {}
    /// Whether a row may be changed at all; tells why not.
    [[nodiscard]] virtual bool mayEditRow() { return true; }
    [[nodiscard]] virtual bool mayDeleteRow() { return true; }
    /// The dialog holds the texts of the row that is about to be edited.
    virtual void beginEdit() {}
    /// Writes what the dialog holds, as a new row or over the current one. False, after telling why, if it can't be
    /// written yet.
    [[nodiscard]] virtual bool saveRow();
    /// The row was written.
    virtual void finishSave() {}
    /// The columns that are written in a way of their own.
    virtual void writeRow(data::Recordset& row);
    /// The table holds a row less.
    virtual void finishDelete() {}

    [[nodiscard]] const ListDefinition& definition() const { return definition_; }
    [[nodiscard]] data::Recordset& rows() { return rows_; }
    /// Text of the current row's cell. Throws RuntimeError 3021 without a current row.
    [[nodiscard]] QString cell(int column) const;
    /// Key of the current row, as text.
    [[nodiscard]] QString key() const { return cell(0); }
    [[nodiscard]] EditDialog& dialog() { return *dialog_; }
    [[nodiscard]] bool isAdding() const { return bAdding_; }
    /// A recordset for one statement after the other: closed, whatever it was used for before.
    [[nodiscard]] data::Recordset& rowWrite();
    /// Runs a statement that returns no rows.
    void run(const QString& statement);

private:
    [[nodiscard]] session::RecordActions actions();
    [[nodiscard]] session::WindowCommands commands();
    void formatGrid();
    void moveComplete();
    void rowChosen(int row) override;
    /// Reads the rows anew with the grid let go.
    void rebind(bool givesUpChange);

    void cmdAdd_Click();
    void cmdEdit_Click();
    /// False while what was entered isn't in the file.
    bool cmdUpdate_Click();
    void cmdCancel_Click();
    void cmdDelete_Click();
    void cmdClose_Click();
    void openDialog();
    void fillDialog();
    void runDialog();
    void closeDialog();
    /// Shows the list with the row that was written.
    void showSaved();
    void endEditing();

    void move(const QString& errorTitle, void (ListScreen::*step)());
    void goFirst() { rows_.moveFirst(); }
    void goPrevious();
    void goNext();
    void goLast() { rows_.moveLast(); }

    void mAttachments_Click();
    void setAttachKey();

    void setButtons(bool browsing);

    const ListDefinition& definition_;
    data::Recordset rows_{data::Opening::List};
    data::Recordset rsRowWrite_{data::Opening::List};
    data::Recordset rsStatement_;
    data::Recordset rsCount_;
    QLabel* lblAttachments_ = nullptr;
    /// Loaded while a row is added or edited.
    EditDialog* dialog_ = nullptr;
    bool bEditing_ = false;
    bool bAdding_ = false;
};

}  // namespace lists
