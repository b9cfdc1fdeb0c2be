#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr Frame vehiclesFrames[] = {
    {"Family Member"_L1},
    {"Vehicle Information"_L1, "Type"_L1, "PaidFor"_L1},
    {"Comment/Documents Locations"_L1, "Comment"_L1},
};
constexpr ScreenDefinition vehicles{
    .name = "frmVehicles"_L1,
    .table = "Vehicles"_L1,
    .title = "Vehicle Information Of -- "_L1,
    .attachmentPrefix = "Veh_"_L1,
    .addCaption = "&Add New Vehicle"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "vehicle information can be created."_L1,
    .deleteNoun = "vehicle information?"_L1,
    .frames = vehiclesFrames,
};

// The misspelling of the ending is meant.
constexpr Frame otherPropertyFrames[] = {
    {"Owner Information"_L1},
    {"Personal Property Information"_L1, "Type"_L1},
    {"Comment/Documents Locations/Description"_L1, "Comment"_L1},
};
constexpr ScreenDefinition otherProperty{
    .name = "frmOtherProperty"_L1,
    .table = "OtherProperty"_L1,
    .title = "Other Property Owned By -- "_L1,
    .attachmentPrefix = "Otp_"_L1,
    .addCaption = "&Add New Personal Property"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "other roperty can be created."_L1,
    .deleteNoun = "other property?"_L1,
    .reportsLoadFailure = true,
    .frames = otherPropertyFrames,
};

constexpr Frame antiquesFrames[] = {
    {"Owner Information"_L1},
    {"Antique Purchase Information"_L1, "Antique"_L1},
    {"Antique Current Value Information"_L1, "ValuationDate"_L1, "Insured"_L1},
    {"Comment"_L1, "Comment"_L1},
};
constexpr ScreenDefinition antiques{
    .name = "frmAntiques"_L1,
    .table = "Antiques"_L1,
    .title = "Antiques Of -- "_L1,
    .attachmentPrefix = "Atq_"_L1,
    .addCaption = "&Add New Antique"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "antique can be created."_L1,
    .deleteNoun = "antique?"_L1,
    .reportsLoadFailure = true,
    .frames = antiquesFrames,
};

constexpr Frame collectiblesFrames[] = {
    {"Owner Information"_L1},
    {"Collectible Purchase Information"_L1, "CatalogNum"_L1},
    {"Collectible Current Value Information"_L1, "ValuationDate"_L1, "Insured"_L1},
    {"Comment"_L1, "Comment"_L1},
};
constexpr ScreenDefinition collectibles{
    .name = "frmCollectibles"_L1,
    .table = "Collectibles"_L1,
    .title = "Collectibles Of -- "_L1,
    .attachmentPrefix = "Col_"_L1,
    .addCaption = "&Add New Collectible"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "collectible can be created."_L1,
    .deleteNoun = "collectible?"_L1,
    .reportsLoadFailure = true,
    .frames = collectiblesFrames,
};

constexpr ScreenDefinition propertyGroup[] = {
    vehicles,
    otherProperty,
    antiques,
    collectibles,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> propertyEntries() {
    return propertyGroup;
}

}  // namespace screens
