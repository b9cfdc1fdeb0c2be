#include "screens/catalogue/catalogue.h"

#include <algorithm>
#include <vector>

#include "screens/catalogue/groups.h"
#include "screens/catalogue/person_entry.h"

namespace screens {

namespace {

std::vector<ScreenDefinition> gatherOwned() {
    std::vector<ScreenDefinition> all;
    for (const auto group :
         {personEntries(), familyEntries(), healthEntries(), bankingEntries(), investmentEntries(), retirementEntries(),
          realEstateEntries(), propertyEntries(), insuranceEntries(), obligationEntries()}) {
        all.insert(all.end(), group.begin(), group.end());
    }
    return all;
}

}  // namespace

std::span<const ScreenDefinition> ownedScreens() {
    static const std::vector<ScreenDefinition> all = gatherOwned();
    return all;
}

std::span<const ScreenDefinition> referenceScreens() {
    return referenceEntries();
}

std::span<const ScreenDefinition> childScreens() {
    return childEntries();
}

const ScreenDefinition* screenDefinition(QStringView name) {
    if (name == personEntry().name) return &personEntry();
    for (const auto entries : {ownedScreens(), referenceScreens(), childScreens()}) {
        const auto found = std::ranges::find_if(entries, [&](const auto& entry) { return name == entry.name; });
        if (found != entries.end()) return &*found;
    }
    return nullptr;
}

}  // namespace screens
