#include "data/tables.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "data/tables/groups.h"

namespace data {

namespace {

std::vector<Table> gatherTables() {
    std::vector<Table> all;
    for (const auto group : {personTables(), familyTables(), healthTables(), bankingTables(), investmentTables(),
                             retirementTables(), realEstateTables(), propertyTables(), insuranceTables(),
                             obligationTables(), referenceTables(), systemTables()}) {
        all.insert(all.end(), group.begin(), group.end());
    }
    return all;
}

}  // namespace

std::span<const Table> allTables() {
    static const std::vector<Table> all = gatherTables();
    return all;
}

const Table& table(QStringView name) {
    const auto all = allTables();
    const auto found = std::ranges::find_if(
        all, [name](const Table& each) { return name.compare(each.name, Qt::CaseInsensitive) == 0; });
    if (found == all.end()) throw std::out_of_range("no table " + name.toString().toStdString());
    return *found;
}

}  // namespace data
