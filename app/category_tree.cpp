#include "app/category_tree.h"

#include "app/category_nodes.h"
#include "app/host_rows.h"
#include "app/tree_pictures.h"
#include "platform/base/runtime_error.h"
#include "platform/forms/desktop.h"
#include "platform/forms/tree_view.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

/// What a picture can't tell who doesn't see it. It goes by the rows alone, not by what is selected.
const QString ofRows = u"has records"_s;

}  // namespace

CategoryTree::CategoryTree(platform::TreeView& view, session::Session& session, HostRows& rows)
    : view_(view), session_(session), rows_(rows) {}

void CategoryTree::build() {
    for (const CategoryNode& node : categoryNodes())
        view_.addNode(node.parent, node.key, node.text);
}

const CategoryNode& CategoryTree::node(int nodeIndex) {
    return categoryNodes()[static_cast<std::size_t>(nodeIndex) - 1];
}

void CategoryTree::setAllImages() {
    const data::Connection::ReadHold hold(session_.gConnection);
    for (int i = 1; i <= view_.nodeCount(); ++i)
        setImage(i);
}

void CategoryTree::setImage(int nodeIndex) {
    try {
        const CategoryNode& drawn = node(nodeIndex);
        const int child = view_.firstChild(nodeIndex);
        if (!drawn.table().isEmpty()) {
            countNode(nodeIndex);
        } else if (child > 0) {
            setParent(child);
        } else {
            const bool filled = drawn.picture.followsSelection && view_.selected(nodeIndex);
            view_.setImage(nodeIndex, filled ? withData : withoutData);
        }
    } catch (const platform::RuntimeError& error) {
        throw platform::RunEnded{.words = error.report(), .title = u"SetImage Error"_s};
    }
}

void CategoryTree::countNode(int nodeIndex) {
    const bool hasData = rows_.count(counted(node(nodeIndex))) != 0;
    view_.setImage(nodeIndex, hasData ? withData : withoutData);
    view_.setNote(nodeIndex, hasData ? ofRows : QString());
    // The root is never reached this way: its picture keeps what its own step gave it.
    for (int index = nodeIndex; view_.parentIndex(index) > 1; index = view_.parentIndex(index))
        setParent(index);
}

QString CategoryTree::counted(const CategoryNode& node) const {
    QString all = node.table();
    const bool everybody = session_.gsPersonName == u"Whole Family"_s || session_.gsPersonName == u"Family"_s;
    if (everybody || node.picture.memberColumn.isEmpty()) return all;
    return all + u" where "_s + node.picture.memberColumn + u" = "_s + QString::number(session_.gPersonID);
}

void CategoryTree::setParent(int nodeIndex) {
    const int last = view_.lastSibling(nodeIndex);
    if (last == 1) return;
    bool someHaveData = false;
    bool someHaveRows = false;
    for (int sibling = last; sibling > 0; sibling = view_.previous(sibling)) {
        someHaveData = someHaveData || view_.image(sibling) == withData;
        someHaveRows = someHaveRows || !view_.note(sibling).isEmpty();
    }
    view_.setImage(view_.parentIndex(nodeIndex), someHaveData ? withData : withoutData);
    view_.setNote(view_.parentIndex(nodeIndex), someHaveRows ? ofRows : QString());
}

}  // namespace app
