#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr Frame inventoryFrames[] = {
    {"Family Member"_L1},
    {"Item Information"_L1, "Location:"_L1},
    {"Comment"_L1, "Description"_L1},
};
constexpr ScreenDefinition inventory{
    .name = "frmInventory"_L1,
    .table = "Inventory"_L1,
    .attachmentPrefix = "Inv_"_L1,
    .addCaption = "&Add New Item"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "inventory information can be created."_L1,
    .deleteNoun = "inventory information?"_L1,
    .query = "Select ID,TypeID,ParentID,YearPurchased,Cost,Type,Description from Inventory "_L1,
    .frames = inventoryFrames,
};

constexpr Frame improvementsFrames[] = {
    {"Family Member"_L1},
    {"Improvement Information"_L1, "Location:"_L1},
    {"Comment"_L1, "Description"_L1},
};
constexpr ScreenDefinition improvements{
    .name = "frmImprovements"_L1,
    .table = "Improvements"_L1,
    .attachmentPrefix = "Imp_"_L1,
    .addCaption = "&Add New Improvement"_L1,
    .ownerLabel = "Owner:"_L1,
    .saveEnding = "improvement information can be created."_L1,
    .deleteNoun = "improvement information?"_L1,
    .query = "Select * from Improvements "_L1,
    .queryOrder = " Order by ID"_L1,
    .frames = improvementsFrames,
};

constexpr Frame outbuildingsFrames[] = {
    {"Family Member"_L1},
    {"Outbuilding Information"_L1, "Location:"_L1},
    {"Comment"_L1, "Description"_L1},
};
constexpr ScreenDefinition outbuildings{
    .name = "frmOutbuildings"_L1,
    .table = "Outbuildings"_L1,
    .attachmentPrefix = "Otb_"_L1,
    .addCaption = "&Add New Outbuilding"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "outbuilding information can be created."_L1,
    .deleteNoun = "outbuilding information?"_L1,
    .query = "Select * from Outbuildings "_L1,
    .queryOrder = " Order by ID"_L1,
    .frames = outbuildingsFrames,
};

constexpr ScreenDefinition childGroup[] = {
    inventory,
    improvements,
    outbuildings,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> childEntries() {
    return childGroup;
}

}  // namespace screens
