#include "platform/forms/data_grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <algorithm>

#include "platform/base/record_source.h"
#include "platform/base/runtime_error.h"
#include "platform/forms/grid_delegate.h"
#include "platform/forms/grid_model.h"
#include "platform/forms/table_accessible.h"

namespace platform {

namespace {
/// The shares are of the width beside a scroll bar of this width: 315 twips at 96 dpi.
constexpr int scrollBarWidth = 21;
}  // namespace

DataGrid::DataGrid(int rowLines, QWidget* parent)
    : QTableView(parent), rowLines_(rowLines), model_(std::make_unique<GridModel>()) {
    setModel(model_.get());
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setItemDelegate(new GridDelegate(this));
    setAlternatingRowColors(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(0);
    horizontalHeader()->setMinimumSectionSize(0);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setTextElideMode(Qt::ElideRight);
    measure();
}

DataGrid::~DataGrid() {
    setModel(nullptr);
}

void DataGrid::setSource(RowSource* source) {
    if (source_) source_->disconnect(this);
    source_ = source;
    const QScopedValueRollback following(following_, true);
    model_->setSource(source);
    if (!source) return;
    connect(source, &RecordSource::rowShown, this, &DataGrid::showCurrentRow);
    showCurrentRow();
}

int DataGrid::rowCount() const {
    return model_->rowCount();
}

int DataGrid::columnCount() const {
    return model_->columnCount();
}

QString DataGrid::columnCaption(int column) const {
    return model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

QString DataGrid::columnText(int column) const {
    if (!source_ || source_->currentRow() < 0) throw RuntimeError(Error::NoCurrentRecord);
    return rowTexts(source_->currentRow()).at(column);
}

QStringList DataGrid::rowTexts(int row) const {
    return model_->texts(row);
}

void DataGrid::setShares(std::vector<double> shares) {
    shares_ = std::move(shares);
    spreadColumns();
}

void DataGrid::spreadColumns() {
    const int width = this->width() - scrollBarWidth;
    for (int column = 0; column < std::min(columnCount(), static_cast<int>(shares_.size())); ++column) {
        const int pixels = static_cast<int>(width * shares_[static_cast<std::size_t>(column)]);
        setColumnHidden(column, pixels < 2);
        if (pixels >= 2) setColumnWidth(column, pixels);
    }
}

void DataGrid::measure() {
    verticalHeader()->setDefaultSectionSize(rowLines_ * fontMetrics().lineSpacing() + fontMetrics().height() / 2);
    QFont bold = font();
    bold.setBold(true);
    horizontalHeader()->setFont(bold);
}

void DataGrid::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) measure();
}

void DataGrid::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    spreadColumns();
}

void DataGrid::showCurrentRow() {
    const QScopedValueRollback following(following_, true);
    const int row = source_ ? source_->currentRow() : -1;
    int column = 0;
    while (column < columnCount() && isColumnHidden(column))
        ++column;
    const QModelIndex index = row < 0 ? QModelIndex() : model_->index(row, column);
    setCurrentIndex(index);
    if (!index.isValid()) clearSelection();
}

void DataGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // What the table would tell a screen reader besides is of cells that nobody sees.
    QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
    if (current.row() != previous.row()) tellCurrentRow(*this);
    const bool byUser = !following_ && current.isValid() && current.row() != previous.row();
    if (byUser && chosen_) chosen_(current.row());
}

void DataGrid::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QAbstractItemView::selectionChanged(selected, deselected);  // NOLINT(bugprone-parent-virtual-call)
}

void DataGrid::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    tellCurrentRowSoon(*this);
}

void DataGrid::keyPressEvent(QKeyEvent* event) {
    // The form moves its recordset by the keyboard, and the grid goes with it.
    event->ignore();
}

void DataGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    const bool onRow = event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid();
    if (onRow && opened_) opened_();
}

}  // namespace platform
