#pragma once

#include <memory>

#include "output/printable_grid.h"
#include "session/data_window.h"
#include "session/record_buttons.h"
#include "session/window_menus.h"

class QLayout;
class QVBoxLayout;

namespace platform {
class DataGrid;
}

namespace lists {

/// A window with a grid of rows that can be printed and saved as a listing: menus and toolbar, the grid, the buttons.
/// What the rows are, and what is done with them, is each kind's own.
class GridWindow : public session::DataWindow {
    Q_OBJECT

public:
    [[nodiscard]] bool keyPreview() const override { return true; }
    /// It has nothing to lose: what was entered stands in the file.
    void Form_QueryUnload(bool& /*cancel*/) override {}

protected:
    /// `rowLines`: of text in a row of the grid.
    GridWindow(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
               const QString& name, int rowLines);

    /// The commands of every grid, those of its listing among them.
    [[nodiscard]] session::WindowCommands gridCommands();
    /// Puts the window together.
    void layOut(const session::WindowCommands& commands, const session::RecordActions& actions);
    /// Puts a row between toolbar and grid, which takes it over.
    void addHead(QLayout& head);
    /// The user chose a row, from 0.
    virtual void rowChosen(int row) = 0;

    [[nodiscard]] platform::DataGrid& grid() const { return *grdDataGrid_; }
    [[nodiscard]] session::RecordButtons& buttons() const { return *buttons_; }
    /// False, after telling so, in an empty grid.
    [[nodiscard]] bool hasEntries(const QString& purpose);

private:
    [[nodiscard]] output::PrintableGrid printable() const;

    std::unique_ptr<session::WindowMenus> menus_;
    std::unique_ptr<session::RecordButtons> buttons_;
    platform::DataGrid* grdDataGrid_;
    QVBoxLayout* page_ = nullptr;
};

}  // namespace lists
