#include "lists/list_catalogue.h"

#include <algorithm>

#include "lists/asset_liquidation.h"
#include "lists/medical_log.h"
#include "lists/who_gets_what.h"

namespace lists {

const ListDefinition* listDefinition(QStringView window) {
    const ListDefinition* const all[] = {&AssetLiquidation::list(), &MedicalLog::list(), &WhoGetsWhat::list()};
    const auto* const found = std::ranges::find_if(all, [&](const auto* list) { return list->window == window; });
    return found == std::end(all) ? nullptr : *found;
}

}  // namespace lists
