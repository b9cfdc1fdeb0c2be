#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr ComboColumn vehiclesCombos[] = {
    {1, "RegState"_L1, 8},
    {2, "State"_L1, 16},
};
constexpr FieldCheck vehiclesChecks[] = {{4, Check::Number}};
constexpr Frame vehiclesFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Vehicle Information"_L1, {1, 17}, {0, 1}},
    {2, "Comment/Documents Locations"_L1, {18, 18}, {}},
};
constexpr ScreenDefinition vehicles{
    .name = "frmVehicles"_L1,
    .table = "Vehicles"_L1,
    .recordset = "adoVehiclesRS"_L1,
    .title = "Vehicle Information Of -- "_L1,
    .attachmentPrefix = "Veh_"_L1,
    .addCaption = "&Add New Vehicle"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "vehicle information can be created."_L1,
    .deleteNoun = "vehicle information?"_L1,
    .combos = vehiclesCombos,
    .checks = vehiclesChecks,
    .frames = vehiclesFrames,
};

// The misspelling of the ending is meant.
constexpr DateColumn otherPropertyDates[] = {
    {3, "DateAcquired"_L1},
    {7, "ValuationDate"_L1},
};
constexpr FieldCheck otherPropertyChecks[] = {
    {2, Check::Number},
    {3, Check::Date},
    {6, Check::Number},
    {7, Check::Date},
};
constexpr Frame otherPropertyFrames[] = {
    {0, "Owner Information"_L1, {0, 0}, {}},
    {1, "Personal Property Information"_L1, {1, 8}, {}},
    {2, "Comment/Documents Locations/Description"_L1, {9, 9}, {}},
};
constexpr ScreenDefinition otherProperty{
    .name = "frmOtherProperty"_L1,
    .table = "OtherProperty"_L1,
    .recordset = "adoOtherPropertyRS"_L1,
    .title = "Other Property Owned By -- "_L1,
    .attachmentPrefix = "Otp_"_L1,
    .addCaption = "&Add New Personal Property"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "other roperty can be created."_L1,
    .deleteNoun = "other property?"_L1,
    .reportsLoadFailure = true,
    .dates = otherPropertyDates,
    .checks = otherPropertyChecks,
    .frames = otherPropertyFrames,
};

constexpr DateColumn antiquesDates[] = {
    {6, "DateAcquired"_L1},
    {8, "ValuationDate"_L1},
    {11, "AppraisalDate"_L1},
};
constexpr FieldCheck antiquesChecks[] = {
    {2, Check::Number},
    {6, Check::Date},
    {7, Check::Number},
    {8, Check::Date},
    {10, Check::Number},
    {11, Check::Date},
};
constexpr Frame antiquesFrames[] = {
    {0, "Owner Information"_L1, {0, 0}, {}},
    {1, "Antique Purchase Information"_L1, {1, 7}, {}},
    {2, "Antique Current Value Information"_L1, {8, 15}, {0, 0}},
    {3, "Comment"_L1, {16, 16}, {}},
};
constexpr ScreenDefinition antiques{
    .name = "frmAntiques"_L1,
    .table = "Antiques"_L1,
    .recordset = "adoAntiquesRS"_L1,
    .title = "Antiques Of -- "_L1,
    .attachmentPrefix = "Atq_"_L1,
    .addCaption = "&Add New Antique"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "antique can be created."_L1,
    .deleteNoun = "antique?"_L1,
    .reportsLoadFailure = true,
    .dates = antiquesDates,
    .checks = antiquesChecks,
    .frames = antiquesFrames,
};

constexpr DateColumn collectiblesDates[] = {
    {7, "DateAcquired"_L1},
    {9, "ValuationDate"_L1},
    {12, "AppraisalDate"_L1},
};
constexpr FieldCheck collectiblesChecks[] = {
    {3, Check::Number},
    {7, Check::Date},
    {8, Check::Number},
    {9, Check::Date},
    {11, Check::Number},
    {12, Check::Date},
};
constexpr Frame collectiblesFrames[] = {
    {0, "Owner Information"_L1, {0, 0}, {}},
    {1, "Collectible Purchase Information"_L1, {1, 8}, {}},
    {2, "Collectible Current Value Information"_L1, {9, 16}, {0, 0}},
    {3, "Comment"_L1, {17, 17}, {}},
};
constexpr ScreenDefinition collectibles{
    .name = "frmCollectibles"_L1,
    .table = "Collectibles"_L1,
    .recordset = "adoCollectiblesRS"_L1,
    .title = "Collectibles Of -- "_L1,
    .attachmentPrefix = "Col_"_L1,
    .addCaption = "&Add New Collectible"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "collectible can be created."_L1,
    .deleteNoun = "collectible?"_L1,
    .reportsLoadFailure = true,
    .dates = collectiblesDates,
    .checks = collectiblesChecks,
    .frames = collectiblesFrames,
};

constexpr ScreenDefinition entries[] = {
    vehicles,
    otherProperty,
    antiques,
    collectibles,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> propertyEntries() {
    return entries;
}

}  // namespace screens
