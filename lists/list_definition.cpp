#include "lists/list_definition.h"

#include "session/selection.h"

using namespace Qt::StringLiterals;

namespace lists {

namespace {
constexpr double leastShare = 0.01;
}

QString listStatement(const ListDefinition& list, const session::Selection& selection) {
    if (selection.wholeFamily || list.ofMember.isEmpty()) return list.select;
    return list.select + list.ofMember.arg(selection.personID);
}

QString listCaption(const ListDefinition& list, const session::Selection& selection) {
    return list.ofMember.isEmpty() ? list.caption : list.caption + selection.name;
}

std::vector<int> shownColumns(const ListDefinition& list) {
    std::vector<int> shown;
    for (std::size_t column = 0; column < list.shares.size(); ++column) {
        if (list.shares[column] >= leastShare) shown.push_back(static_cast<int>(column));
    }
    return shown;
}

std::vector<output::GridColumn> paperColumns(const ListDefinition& list, const QStringList& captions) {
    std::vector<output::GridColumn> columns;
    for (const int column : shownColumns(list))
        columns.push_back({captions[column], output::listingWidth(list.shares[static_cast<std::size_t>(column)], 1)});
    return columns;
}

}  // namespace lists
