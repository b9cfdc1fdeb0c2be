#pragma once

#include <QTreeWidget>
#include <functional>

#include "platform/forms/control.h"

class QMenu;

namespace platform {

/// A list in columns, one line an item, in the order in which the items were added.
///
/// As soon as it holds an item, one of them is selected: the first one until the user chooses another.
class ListView : public QTreeWidget, public Control {
    Q_OBJECT

public:
    struct Header {
        QString text;
        int characters = 0;  ///< width; 0 for a column that shares the rest with its like
    };

    explicit ListView(const QList<Header>& headers, QWidget* parent = nullptr);

    [[nodiscard]] QWidget& widget() override { return *this; }

    /// Adds an item at the end; its texts are those of the columns from the first one on.
    void add(const QStringList& texts);
    void clearItems() { clear(); }
    [[nodiscard]] int count() const { return topLevelItemCount(); }
    /// Place of the first item with that text in a column, from 0; -1 if there is none.
    [[nodiscard]] int find(int column, const QString& text) const;
    /// Selects an item by its place, from 0; an empty list stays as it is.
    void selectItem(int row);
    /// Text of the selected item in a column, from 0. Throws 91 on an empty list.
    [[nodiscard]] QString selectedText(int column) const;

    /// The left button was pressed twice, on an item or beside the items.
    void onDoubleClick(std::function<void()> handler) { doubleClicked_ = std::move(handler); }
    /// The menu that the right button brings up when it is let go.
    void setPopupMenu(QMenu* menu) { popup_ = menu; }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                       const QEvent* event) const override;

private:
    std::function<void()> doubleClicked_;
    QMenu* popup_ = nullptr;
};

}  // namespace platform
