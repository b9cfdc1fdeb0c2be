#include "lists/grid_window.h"

#include <QToolBar>
#include <QVBoxLayout>

#include "output/grid_output.h"
#include "platform/forms/data_grid.h"
#include "platform/forms/desktop.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace lists {

GridWindow::GridWindow(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace,
                       const QString& name, int rowLines)
    : DataWindow(desktop, session, workspace, name), grdDataGrid_(new platform::DataGrid(rowLines, this)) {
    grdDataGrid_->setName(u"grdDataGrid"_s);
    grdDataGrid_->onRowChosen([this](int row) { this->desktop().run([&] { rowChosen(row); }); });
}

session::WindowCommands GridWindow::gridCommands() {
    session::WindowCommands commands = commonCommands();
    commands.print = handler([this] {
        if (hasEntries(u"print"_s)) output::printGrid(desktop(), printable());
    });
    commands.save =
        handler([this] { output::saveGrid(desktop(), session().applicationFolder, [this] { return printable(); }); });
    commands.hasAllRecords = false;
    return commands;
}

void GridWindow::layOut(const session::WindowCommands& commands, const session::RecordActions& actions) {
    menus_ = std::make_unique<session::WindowMenus>(*this, commands);
    for (QMenu* menu : menus_->menus())
        addMenu(menu);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 6);
    column->setSpacing(4);
    column->addWidget(&menus_->toolbar());
    page_ = new QVBoxLayout;
    page_->setContentsMargins(9, 0, 9, 0);
    page_->addWidget(grdDataGrid_, 1);
    column->addLayout(page_, 1);
    buttons_ = std::make_unique<session::RecordButtons>(*this, *page_, u"&Add"_s, actions);
}

void GridWindow::addHead(QLayout& head) {
    page_->insertLayout(0, &head);
}

bool GridWindow::hasEntries(const QString& purpose) {
    const bool empty = grdDataGrid_->rowCount() == 0;
    if (empty) session::showNoEntries(desktop(), purpose);
    return !empty;
}

output::PrintableGrid GridWindow::printable() const {
    std::vector<int> shown;
    output::PrintableGrid listing{.caption = caption()};
    for (int column = 0; column < grdDataGrid_->columnCount(); ++column) {
        if (grdDataGrid_->isColumnHidden(column)) continue;
        shown.push_back(column);
        listing.columns.push_back({grdDataGrid_->columnCaption(column),
                                   output::listingWidth(grdDataGrid_->columnWidth(column), grdDataGrid_->width())});
    }
    // The rows are looked at where they stand, so that the grid stays at its current one.
    listing.walk = [this, shown](const std::function<void(const QStringList&)>& visit) {
        for (int row = 0; row < grdDataGrid_->rowCount(); ++row) {
            const QStringList texts = grdDataGrid_->rowTexts(row);
            QStringList cells;
            for (const int column : shown)
                cells.append(texts[column]);
            visit(cells);
        }
    };
    return listing;
}

}  // namespace lists
