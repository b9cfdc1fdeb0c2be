#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "lists/edit_field.h"
#include "output/printable_grid.h"

namespace session {
struct Selection;
}

namespace lists {

/// What tells one list from another.
struct ListDefinition {
    QString window;
    /// Title of the window; ahead of the selected name where the list shows a member's rows.
    QString caption;
    /// The table whose rows the list edits.
    QString table;
    int rowLines;  ///< of text in a row of the grid
    /// Of the grid's width, by columns. The first column is the key.
    std::vector<double> shares;
    EditForm form;
    /// Reads all rows in the list's order; empty where the window makes its own.
    QString select{};
    /// What goes behind it for one member, with %1 for his ID; empty for a list of the whole family's.
    QString ofMember{};
    /// Front of the attachment keys; empty for a list without attachments.
    QString attachmentPrefix{};
    /// The rows are only edited here; they come and go elsewhere.
    bool editsOnly = false;
    /// The category tree is closed while a row is added.
    bool closesTree = false;
};

/// The statement that reads the rows of a list.
[[nodiscard]] QString listStatement(const ListDefinition& list, const session::Selection& selection);
/// The title of the list's window.
[[nodiscard]] QString listCaption(const ListDefinition& list, const session::Selection& selection);

/// What of a list is put out: the numbers of its columns. One with next to nothing of the width is hidden.
[[nodiscard]] std::vector<int> shownColumns(const ListDefinition& list);
/// Those columns with their captions among those of all columns, as wide on paper as their shares say.
[[nodiscard]] std::vector<output::GridColumn> paperColumns(const ListDefinition& list, const QStringList& captions);

}  // namespace lists
