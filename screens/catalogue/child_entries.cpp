#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr FieldCheck inventoryChecks[] = {
    {3, Check::Number},
    {4, Check::Number},
};
constexpr Frame inventoryFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Item Information"_L1, {1, 4}, {}},
    {2, "Comment"_L1, {5, 5}, {}},
};
constexpr ScreenDefinition inventory{
    .name = "frmInventory"_L1,
    .table = "Inventory"_L1,
    .recordset = "adoOtherRS"_L1,
    .attachmentPrefix = "Inv_"_L1,
    .addCaption = "&Add New Item"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "inventory information can be created."_L1,
    .deleteNoun = "inventory information?"_L1,
    .query = "Select ID,TypeID,ParentID,YearPurchased,Cost,Type,Description from Inventory "_L1,
    .checks = inventoryChecks,
    .frames = inventoryFrames,
};

constexpr FieldCheck improvementsChecks[] = {
    {3, Check::Number},
    {4, Check::Number},
};
constexpr Frame improvementsFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Improvement Information"_L1, {1, 4}, {}},
    {2, "Comment"_L1, {5, 5}, {}},
};
constexpr ScreenDefinition improvements{
    .name = "frmImprovements"_L1,
    .table = "Improvements"_L1,
    .recordset = "adoOtherRS"_L1,
    .attachmentPrefix = "Imp_"_L1,
    .addCaption = "&Add New Improvement"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "improvement information can be created."_L1,
    .deleteNoun = "improvement information?"_L1,
    .query = "Select * from Improvements "_L1,
    .queryOrder = " Order by ID"_L1,
    .checks = improvementsChecks,
    .frames = improvementsFrames,
};

constexpr FieldCheck outbuildingsChecks[] = {
    {3, Check::Number},
    {4, Check::Number},
};
constexpr Frame outbuildingsFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Outbuilding Information"_L1, {1, 4}, {}},
    {2, "Comment"_L1, {5, 5}, {}},
};
constexpr ScreenDefinition outbuildings{
    .name = "frmOutbuildings"_L1,
    .table = "Outbuildings"_L1,
    .recordset = "adoOtherRS"_L1,
    .attachmentPrefix = "Otb_"_L1,
    .addCaption = "&Add New Outbuilding"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "outbuilding information can be created."_L1,
    .deleteNoun = "outbuilding information?"_L1,
    .query = "Select * from Outbuildings "_L1,
    .queryOrder = " Order by ID"_L1,
    .checks = outbuildingsChecks,
    .frames = outbuildingsFrames,
};

constexpr ScreenDefinition entries[] = {
    inventory,
    improvements,
    outbuildings,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> childEntries() {
    return entries;
}

}  // namespace screens
