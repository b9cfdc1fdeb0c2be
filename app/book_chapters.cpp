#include "app/book_chapters.h"

#include <algorithm>
#include <map>

#include "app/category_nodes.h"
#include "book/listed.h"
#include "screens/catalogue/catalogue.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

using book::Chapter;

bool isKnown(const std::vector<Chapter>& chapters, const CategoryNode& node) {
    return std::ranges::find(chapters, QString(node.opens), &Chapter::window) != chapters.end();
}

std::vector<Chapter> categories() {
    std::vector<Chapter> chapters;
    // The level of what stands below a node; the root is no heading.
    std::map<QString, int> below;
    for (const CategoryNode& node : categoryNodes()) {
        const int level = node.parent.isEmpty() ? -1 : below[node.parent];
        below[node.key] = level + 1;
        const bool hasRecords = screens::screenDefinition(QString(node.opens)) && !isKnown(chapters, node);
        if (level >= 0 && (node.opens.isEmpty() || hasRecords)) chapters.push_back({level, node.text, node.opens});
    }
    return chapters;
}

std::vector<Chapter> lists() {
    std::vector<Chapter> chapters{{0, u"Lists"_s}, {1, u"Family Sequence"_s, u"frmFamilySequence"_s}};
    for (const CategoryNode& node : categoryNodes()) {
        if (book::listed(QString(node.opens)) && !isKnown(chapters, node))
            chapters.push_back({1, node.text, node.opens});
    }
    return chapters;
}

}  // namespace

std::vector<book::Chapter> bookChapters() {
    std::vector<Chapter> chapters = categories();
    std::ranges::copy(lists(), std::back_inserter(chapters));
    chapters.push_back({0, u"Attachments"_s, book::attachedFiles()});
    return chapters;
}

}  // namespace app
