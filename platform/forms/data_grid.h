#pragma once

#include <QPointer>
#include <QTableView>
#include <functional>
#include <memory>
#include <vector>

#include "platform/forms/control.h"

namespace platform {

class GridModel;
class RowSource;

/// A table over a recordset: its selected row is the recordset's current row. Nothing can be typed in it.
///
/// A row is read when it comes into view, so a long list scrolls as fast as a short one.
class DataGrid : public QTableView, public Control {
    Q_OBJECT

public:
    /// `rowLines`: lines of text that a row has room for.
    explicit DataGrid(int rowLines, QWidget* parent = nullptr);
    ~DataGrid() override;

    [[nodiscard]] QWidget& widget() override { return *this; }

    /// Shows the rows from here on; nullptr empties the grid.
    void setSource(RowSource* source);
    /// The user chose a row, from 0: whoever hears of it makes it the current one.
    void onRowChosen(std::function<void(int)> handler) { chosen_ = std::move(handler); }
    /// The current row was clicked twice.
    void onRowOpened(std::function<void()> handler) { opened_ = std::move(handler); }

    [[nodiscard]] int rowCount() const;
    [[nodiscard]] int columnCount() const;
    [[nodiscard]] QString columnCaption(int column) const;
    /// Text of the current row's cell. Throws RuntimeError 3021 without a current row.
    [[nodiscard]] QString columnText(int column) const;
    /// Texts of a row's cells, from 0.
    [[nodiscard]] QStringList rowTexts(int row) const;
    /// Gives each column its share of the width that is left beside the scroll bar, now and whenever the grid changes
    /// its size. A share of next to nothing hides the column.
    void setShares(std::vector<double> shares);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void showCurrentRow();
    void spreadColumns();
    /// Sets what depends on the font.
    void measure();

    int rowLines_;
    std::unique_ptr<GridModel> model_;
    QPointer<RowSource> source_;
    std::function<void(int)> chosen_;
    std::function<void()> opened_;
    std::vector<double> shares_;
    bool following_ = false;
};

}  // namespace platform
