#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <QTreeWidget>
#include <functional>
#include <vector>

#include "platform/forms/control.h"

namespace platform {

/// A tree whose nodes count from 1 in order of creation and are known by key.
class TreeView : public QTreeWidget, public Control {
    Q_OBJECT

public:
    explicit TreeView(QWidget* parent = nullptr);

    [[nodiscard]] QWidget& widget() override { return *this; }
    void setSpokenName(const QString& name) override;

    /// Adds a node at the end of its parent's children; an empty parent key adds the root. Returns its index.
    /// Throws RuntimeError 35601 for an unknown parent.
    int addNode(const QString& parentKey, const QString& key, const QString& text);
    [[nodiscard]] int nodeCount() const { return static_cast<int>(nodes_.size()); }
    /// Index of the node with the key; 0 if there is none.
    [[nodiscard]] int indexOf(const QString& key) const;
    [[nodiscard]] QString key(int index) const { return at(index).key; }
    [[nodiscard]] QString text(int index) const { return at(index).item->text(0); }
    [[nodiscard]] QTreeWidgetItem* node(int index) const { return at(index).item; }
    [[nodiscard]] bool selected(int index) const { return at(index).item->isSelected(); }
    [[nodiscard]] bool expanded(int index) const { return at(index).item->isExpanded(); }
    void expandNode(int index);
    /// Selects a node without a click, in sight; 0 takes the selection away.
    void showNode(int index);
    /// Pixels that the widest node takes with everything open, scroll bar and frame included.
    [[nodiscard]] int widestNode() const;

    /// Picture of a node, counted from 1 in the list of pictures; 0 for none.
    [[nodiscard]] int image(int index) const { return at(index).image; }
    void setImage(int index, int image);
    void setImages(std::vector<QIcon> images);
    /// What a screen reader says of a node besides its text and its level; empty for nothing.
    [[nodiscard]] QString note(int index) const { return at(index).note; }
    void setNote(int index, const QString& note);

    // A node's place, each as an index; 0 where there is none.
    [[nodiscard]] int parentIndex(int index) const;
    [[nodiscard]] int firstChild(int index) const;
    [[nodiscard]] int lastSibling(int index) const;
    [[nodiscard]] int previous(int index) const;

    /// The user clicked a node's text or picture, pressed Enter or Space on it, or rested on it with the arrow keys; in
    /// that case the tree keeps the focus, unless it was disabled.
    void onNodeClick(std::function<void(int index)> handler) { clicked_ = std::move(handler); }
    /// A branch was opened or closed.
    void onToggle(std::function<void()> handler) { toggled_ = std::move(handler); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Node {
        QString key;
        QTreeWidgetItem* item;
        int image = 0;
        QString note{};
    };
    [[nodiscard]] const Node& at(int index) const;
    void clickCurrent();
    void rested();
    void describe(const Node& node);
    /// Sets what depends on the font.
    void measure();
    [[nodiscard]] int indexOf(const QTreeWidgetItem* item) const;

    std::vector<Node> nodes_;
    std::vector<QIcon> images_;
    std::function<void(int)> clicked_;
    std::function<void()> toggled_;
    QTimer rest_;
    /// Since the last letter of a name that is looked for: a blank soon after it belongs to the name.
    QElapsedTimer sinceLetter_;
};

}  // namespace platform
