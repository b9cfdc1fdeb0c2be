#include "app/category_tree.h"

#include <algorithm>

#include "app/category_nodes.h"
#include "platform/base/runtime_error.h"
#include "platform/forms/desktop.h"
#include "platform/forms/tree_view.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

constexpr int withoutData = 1;
constexpr int withData = 2;
constexpr int helpNode = 2;
constexpr int personNode = 4;
constexpr int firstSecurityNode = 79;
constexpr int lastSecurityNode = 82;
/// Nodes whose tables belong to nobody in particular: they are counted over all rows, whoever is selected.
constexpr std::array familyNodes{47, 69, 73, 77, 83};

}  // namespace

CategoryTree::CategoryTree(platform::TreeView& view, session::Session& session, data::Recordset& rsHost)
    : view_(view), session_(session), rsHost_(rsHost) {}

void CategoryTree::build() {
    nodeTable_.fill(QString());
    for (const CategoryNode& node : categoryNodes()) {
        const int index = view_.addNode(node.parent, node.key, node.text);
        nodeTable_.at(static_cast<std::size_t>(index)) = node.table;
    }
}

void CategoryTree::setAllImages() {
    const data::Connection::ReadHold hold(session_.gConnection);
    for (int i = 1; i <= view_.nodeCount(); ++i)
        setImage(i);
}

void CategoryTree::setImage(int nodeIndex) {
    try {
        if (nodeIndex >= firstSecurityNode && nodeIndex <= lastSecurityNode) {
            view_.setImage(nodeIndex, view_.selected(nodeIndex) ? withData : withoutData);
            return;
        }
        if (!nodeTable_.at(static_cast<std::size_t>(nodeIndex)).isEmpty()) {
            countNode(nodeIndex);
            return;
        }
        if (nodeIndex == helpNode) view_.setImage(nodeIndex, withoutData);
        if (const int child = view_.firstChild(nodeIndex); child > 0) setParent(child);
    } catch (const platform::RuntimeError& error) {
        throw platform::RunEnded{.words = error.report(), .title = u"SetImage Error"_s};
    }
}

void CategoryTree::countNode(int nodeIndex) {
    rsHost_.release();
    rsHost_.open(countStatement(nodeIndex), session_.gConnection);
    const bool filled = rsHost_.value(u"NumRec"_s).toLongLong() != 0;
    view_.setImage(nodeIndex, filled ? withData : withoutData);
    rsHost_.close();
    // The root is never reached this way: its picture keeps what its own step gave it.
    for (int index = nodeIndex; view_.parentIndex(index) > 1; index = view_.parentIndex(index))
        setParent(index);
}

QString CategoryTree::countStatement(int nodeIndex) const {
    QString all = u"SELECT Count(*) as NumRec from "_s + nodeTable_.at(static_cast<std::size_t>(nodeIndex));
    const bool everybody = session_.gsPersonName == u"Whole Family"_s || session_.gsPersonName == u"Family"_s;
    if (everybody || std::ranges::find(familyNodes, nodeIndex) != familyNodes.end()) return all;
    const QString column = nodeIndex == personNode ? u"ID"_s : u"PersonID"_s;
    return all + u" where "_s + column + u" = "_s + QString::number(session_.gPersonID);
}

void CategoryTree::setParent(int nodeIndex) {
    const int last = view_.lastSibling(nodeIndex);
    if (last == 1) return;
    bool someHaveData = false;
    for (int sibling = last; sibling > 0; sibling = view_.previous(sibling)) {
        someHaveData = someHaveData || view_.image(sibling) == withData;
    }
    view_.setImage(view_.parentIndex(nodeIndex), someHaveData ? withData : withoutData);
}

}  // namespace app
