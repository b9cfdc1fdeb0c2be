#pragma once

#include <QTreeView>
#include <functional>

#include "platform/forms/control.h"

namespace find {

/// The list of what was found. As soon as it holds a line one of them is selected: the first one until the user chooses
/// another.
class FoundList : public QTreeView, public platform::Control {
    Q_OBJECT

public:
    explicit FoundList(QWidget* parent = nullptr);

    [[nodiscard]] QWidget& widget() override { return *this; }

    void setModel(QAbstractItemModel* model) override;
    void onDoubleClick(std::function<void()> handler) { doubleClicked_ = std::move(handler); }
    /// The user went up from the first line.
    void onLeaveUpwards(std::function<void()> handler) { leftUpwards_ = std::move(handler); }
    /// Number of the selected line, from 0; -1 in an empty list.
    [[nodiscard]] int selectedRow() const { return currentIndex().row(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                       const QEvent* event) const override;
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
    void reset() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void spreadColumns();

    std::function<void()> doubleClicked_;
    std::function<void()> leftUpwards_;
    /// The user hasn't chosen a line yet.
    bool untouched_ = true;
};

}  // namespace find
