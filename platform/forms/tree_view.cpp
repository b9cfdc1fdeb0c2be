#include "platform/forms/tree_view.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <chrono>

#include "platform/base/runtime_error.h"
#include "platform/forms/grid_delegate.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {
constexpr int indexRole = Qt::UserRole;
/// How long the arrow keys rest on a node until it counts as clicked.
constexpr std::chrono::milliseconds restTime{600};

/// 1 for the root.
int levelOf(const QTreeWidgetItem& item) {
    int level = 1;
    for (const QTreeWidgetItem* above = item.parent(); above; above = above->parent())
        ++level;
    return level;
}
}  // namespace

TreeView::TreeView(QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setColumnCount(1);
    setItemDelegate(new ItemDelegate(this));
    measure();
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    header()->setStretchLastSection(false);
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        rest_.stop();
        if (clicked_) clicked_(indexOf(item));
    });
    rest_.setSingleShot(true);
    rest_.setInterval(restTime);
    connect(&rest_, &QTimer::timeout, this, &TreeView::rested);
    const auto toggle = [this] {
        if (toggled_) toggled_();
    };
    connect(this, &QTreeWidget::itemExpanded, this, toggle);
    connect(this, &QTreeWidget::itemCollapsed, this, toggle);
}

void TreeView::setSpokenName(const QString& name) {
    setAccessibleName(name);
    // A reader comes upon the column's caption too, though it isn't shown.
    setHeaderLabel(name);
}

int TreeView::addNode(const QString& parentKey, const QString& key, const QString& text) {
    const int parent = parentKey.isEmpty() ? 0 : indexOf(parentKey);
    if (!parentKey.isEmpty() && parent == 0) throw RuntimeError(Error::NoSuchElement);
    auto* item = parent == 0 ? new QTreeWidgetItem(this) : new QTreeWidgetItem(at(parent).item);
    nodes_.push_back({key, item});
    item->setText(0, text);
    item->setData(0, indexRole, nodeCount());
    describe(nodes_.back());
    return nodeCount();
}

int TreeView::indexOf(const QString& key) const {
    const auto found = std::ranges::find(nodes_, key, &Node::key);
    return found == nodes_.end() ? 0 : static_cast<int>(found - nodes_.begin()) + 1;
}

void TreeView::expandNode(int index) {
    at(index).item->setExpanded(true);
}

void TreeView::showNode(int index) {
    if (index == 0) {
        clearSelection();
    } else {
        setCurrentItem(at(index).item);
        scrollToItem(at(index).item);
    }
}

int TreeView::widestNode() const {
    int widest = 0;
    for (const Node& node : nodes_) {
        const int indent = levelOf(*node.item) * indentation();
        widest = std::max(widest, indent + sizeHintForIndex(indexFromItem(node.item)).width());
    }
    return widest + verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
}

void TreeView::measure() {
    // The pictures stand as high as the letters beside them, with a little more.
    const int side = fontMetrics().height() + 1;
    setIconSize({side, side});
}

void TreeView::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    // The highlight of a short node reaches the edge too.
    header()->setMinimumSectionSize(viewport()->width());
}

void TreeView::changeEvent(QEvent* event) {
    QTreeWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) measure();
}

void TreeView::setImage(int index, int image) {
    Node& node = nodes_.at(static_cast<std::size_t>(index - 1));
    if (node.image == image) return;
    node.image = image;
    node.item->setIcon(0, image == 0 ? QIcon() : images_.at(static_cast<std::size_t>(image - 1)));
}

void TreeView::setNote(int index, const QString& note) {
    Node& node = nodes_.at(static_cast<std::size_t>(index - 1));
    if (node.note == note) return;
    node.note = note;
    describe(node);
}

void TreeView::describe(const Node& node) {
    const QString level = u"level %1"_s.arg(levelOf(*node.item));
    node.item->setData(0, Qt::AccessibleDescriptionRole, node.note.isEmpty() ? level : node.note + u", "_s + level);
}

void TreeView::setImages(std::vector<QIcon> images) {
    images_ = std::move(images);
    for (const Node& node : nodes_) {
        if (node.image > 0) node.item->setIcon(0, images_.at(static_cast<std::size_t>(node.image - 1)));
    }
}

int TreeView::parentIndex(int index) const {
    return indexOf(at(index).item->parent());
}

int TreeView::firstChild(int index) const {
    return indexOf(at(index).item->child(0));
}

int TreeView::lastSibling(int index) const {
    const QTreeWidgetItem* parent = at(index).item->parent();
    return parent ? indexOf(parent->child(parent->childCount() - 1)) : index;
}

int TreeView::previous(int index) const {
    QTreeWidgetItem* item = at(index).item;
    const QTreeWidgetItem* parent = item->parent();
    return parent ? indexOf(parent->child(parent->indexOfChild(item) - 1)) : 0;
}

void TreeView::keyPressEvent(QKeyEvent* event) {
    const bool inName = event->key() == Qt::Key_Space && sinceLetter_.isValid() &&
                        !sinceLetter_.hasExpired(QApplication::keyboardInputInterval());
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enters || (event->key() == Qt::Key_Space && !inName)) {
        clickCurrent();
        return;
    }
    const QTreeWidgetItem* before = currentItem();
    QTreeWidget::keyPressEvent(event);
    if (!event->text().isEmpty()) sinceLetter_.start();
    if (currentItem() == before) return;
    // Letters that look for a node open none: the next one would be typed into what came up.
    if (event->text().isEmpty()) {
        rest_.start();
    } else {
        rest_.stop();
    }
}

void TreeView::focusOutEvent(QFocusEvent* event) {
    rest_.stop();
    QTreeWidget::focusOutEvent(event);
}

void TreeView::clickCurrent() {
    rest_.stop();
    if (currentItem() && clicked_) clicked_(indexOf(currentItem()));
}

void TreeView::rested() {
    clickCurrent();
    if (isEnabled() && isActiveWindow()) setFocus();
}

const TreeView::Node& TreeView::at(int index) const {
    if (index < 1 || index > nodeCount()) throw RuntimeError(Error::IndexOutOfBounds);
    return nodes_[static_cast<std::size_t>(index - 1)];
}

int TreeView::indexOf(const QTreeWidgetItem* item) const {
    return item ? item->data(0, indexRole).toInt() : 0;
}

}  // namespace platform
