#pragma once

#include "lists/list_screen.h"
#include "lists/sequenced_dialog.h"

namespace lists {

/// A list whose rows are numbered 1, 2, ..., N in the order in which they show.
///
/// The numbers are out of order between a row's shift and the renumbering behind it. What fails in between leaves gaps
/// or doubles, and the next change that comes to its end puts them right. A row without a number stays without one.
class SequencedList : public ListScreen {
    Q_OBJECT

public:
    using ListScreen::ListScreen;

protected:
    /// The rows that are numbered together.
    [[nodiscard]] virtual Sequence sequence() const { return {definition().table}; }
    void beginEdit() override;
    /// Makes room at the entered number and writes the row.
    [[nodiscard]] bool saveRow() override;
    void finishSave() override { renumberSeq(); }
    void writeRow(data::Recordset& row) override;
    void finishDelete() override { renumberSeq(); }

private:
    void shiftRows();
    /// Writes the numbers of the rows that are out of place.
    void renumberSeq();

    /// Number of the row when its edit began.
    qint16 nOldSeq_ = 0;
    /// Room was made for a row that then wasn't written.
    bool outOfPlace_ = false;
};

}  // namespace lists
