#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

// The owner of a rented home is somebody else: here the member is the renter.
constexpr Frame homesRentedFrames[] = {
    {"Renter Information"_L1},
    {"Rental Information"_L1, "Type"_L1, "CanBeSubleased"_L1},
    {"Comment/Documents Locations"_L1, "Comment"_L1},
};
constexpr ChildOffer homesRentedChildren[] = {{ChildKind::Inventory, "Rental Inventory of "_L1, "Show Inventory"_L1}};
constexpr ScreenDefinition homesRented{
    .name = "frmHomesRented"_L1,
    .table = "HomeRented"_L1,
    .title = "Home Rented By -- "_L1,
    .attachmentPrefix = "Hrn_"_L1,
    .addCaption = "&Add New Home"_L1,
    .ownerLabel = "Renter:"_L1,
    .refusal = noRenter,
    .saveEnding = "rented home can be created."_L1,
    .deleteNoun = "rented home?"_L1,
    .reportsLoadFailure = true,
    .frames = homesRentedFrames,
    .parentType = 2,
    .children = homesRentedChildren,
};

constexpr Frame rentalsFrames[] = {
    {"Owner Information"_L1},
    {"Rental Information"_L1, "Type"_L1, "Survey"_L1},
    {"Comment/Rental,Survey Documents Locations/CoOwner Information"_L1, "Comment"_L1},
};
constexpr ChildOffer rentalsChildren[] = {
    {ChildKind::Inventory, "Rental Inventory of "_L1, "Show Inventory"_L1},
    {ChildKind::Improvements, "Rental Improvements of "_L1, "Show Improvements"_L1},
    {ChildKind::Outbuildings, "Rental Outbuildings of "_L1, "Show Outbuildings"_L1},
};
constexpr ScreenDefinition rentals{
    .name = "frmRentals"_L1,
    .table = "RentalRealEstate"_L1,
    .title = "Rental Site Owned By -- "_L1,
    .attachmentPrefix = "Rnt_"_L1,
    .addCaption = "&Add New Rental"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "rental site can be created."_L1,
    .deleteNoun = "rental site?"_L1,
    .reportsLoadFailure = true,
    .frames = rentalsFrames,
    .parentType = 5,
    .children = rentalsChildren,
};

constexpr Frame homesOwnedFrames[] = {
    {"Owner Information"_L1},
    {"Home Information"_L1, "Type"_L1, "Survey"_L1},
    {"Comment/Home,Survey,Appraisal Documents Locations/CoOwner Information"_L1, "Comment"_L1},
};
constexpr ChildOffer homesOwnedChildren[] = {
    {ChildKind::Inventory, "House Inventory of "_L1, "Show House Inventory"_L1},
    {ChildKind::Improvements, "House Improvements of "_L1, "Show Home Improvements"_L1},
};
constexpr ScreenDefinition homesOwned{
    .name = "frmHomesOwned"_L1,
    .table = "HomeOwned"_L1,
    .title = "Home Owned By -- "_L1,
    .attachmentPrefix = "Hom_"_L1,
    .addCaption = "&Add New Home"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "home can be created."_L1,
    .deleteNoun = "home?"_L1,
    .reportsLoadFailure = true,
    .frames = homesOwnedFrames,
    .parentType = 1,
    .children = homesOwnedChildren,
};

constexpr Frame businessSiteFrames[] = {
    {"Owner Information"_L1},
    {"Business Site Information"_L1, "Type"_L1, "Survey"_L1},
    {"Comment/Home,Survey,Appraisal Documents Locations/CoOwner Information"_L1, "Comment"_L1},
};
constexpr ChildOffer businessSiteChildren[] = {
    {ChildKind::Inventory, "Business Inventory of "_L1, "Show Inventory"_L1},
    {ChildKind::Improvements, "Improvements of "_L1, "Show Improvements"_L1},
    {ChildKind::Outbuildings, "Outbuildings of "_L1, "Show Outbuildings"_L1},
};
constexpr ScreenDefinition businessSite{
    .name = "frmBusinessSite"_L1,
    .table = "BusinessRealEstate"_L1,
    .title = "Business Site Owned By -- "_L1,
    .attachmentPrefix = "Bss_"_L1,
    .addCaption = "&Add New Business Site"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "business site can be created."_L1,
    .deleteNoun = "business site?"_L1,
    .reportsLoadFailure = true,
    .frames = businessSiteFrames,
    .parentType = 3,
    .children = businessSiteChildren,
};

constexpr Frame otherRealEstateFrames[] = {
    {"Owner Information"_L1},
    {"Other Real Estate Site Information"_L1, "Type"_L1, "Survey"_L1},
    {"Comment/Land,Survey,Water Rights Documents Locations/CoOwner Information"_L1, "Comment"_L1},
};
constexpr ChildOffer otherRealEstateChildren[] = {
    {ChildKind::Inventory, "Inventory of "_L1, "Show Inventory"_L1},
    {ChildKind::Improvements, "Improvements of "_L1, "Show Improvements"_L1},
    {ChildKind::Outbuildings, "Outbuildings of "_L1, "Show Outbuildings"_L1},
};
constexpr ScreenDefinition otherRealEstate{
    .name = "frmOtherRealEstate"_L1,
    .table = "OtherRealEstate"_L1,
    .title = "Other Real Estate Site Owned By -- "_L1,
    .attachmentPrefix = "Ore_"_L1,
    .addCaption = "&Add New Other Real Estate"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "other real estate site can be created."_L1,
    .deleteNoun = "other real estate site?"_L1,
    .reportsLoadFailure = true,
    .frames = otherRealEstateFrames,
    .parentType = 7,
    .children = otherRealEstateChildren,
};

constexpr Frame agSiteFrames[] = {
    {"Owner Information"_L1},
    {"Agricultural Site Information"_L1, "CurrentUsage"_L1, "Survey"_L1},
    {"Comment/Land,Survey,Water Rights Documents Locations/CoOwner Information"_L1, "Comment"_L1},
};
constexpr ChildOffer agSiteChildren[] = {
    {ChildKind::Inventory, "Business Inventory of "_L1, "Show Inventory"_L1},
    {ChildKind::Improvements, "Improvements of "_L1, "Show Improvements"_L1},
    {ChildKind::Outbuildings, "Outbuildings of "_L1, "Show Outbuildings"_L1},
};
constexpr ScreenDefinition agSite{
    .name = "frmAgSite"_L1,
    .table = "AgRealEstate"_L1,
    .title = "Agricultural Site Owned By -- "_L1,
    .attachmentPrefix = "Ags_"_L1,
    .addCaption = "&Add New Ag Site"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "agricultural site can be created."_L1,
    .deleteNoun = "agricultural site?"_L1,
    .reportsLoadFailure = true,
    .frames = agSiteFrames,
    .parentType = 4,
    .children = agSiteChildren,
};

constexpr Frame undevelopedFrames[] = {
    {"Owner Information"_L1},
    {"Undeveloped Real Estate Site Information"_L1, "CurrentUsage"_L1, "Survey"_L1},
    {"Comment/Land,Survey,Water Rights Documents Locations/CoOwner Information"_L1, "Comment"_L1},
};
constexpr ChildOffer undevelopedChildren[] = {
    {ChildKind::Inventory, "Inventory of "_L1, "Show Inventory"_L1},
    {ChildKind::Improvements, "Improvements of "_L1, "Show Improvements"_L1},
    {ChildKind::Outbuildings, "Outbuildings of "_L1, "Show Outbuildings"_L1},
};
constexpr ScreenDefinition undeveloped{
    .name = "frmUndeveloped"_L1,
    .table = "UndevelopedRealEstate"_L1,
    .title = "Undeveloped Real Estate Site Owned By -- "_L1,
    .attachmentPrefix = "Udv_"_L1,
    .addCaption = "&Add New Undeveloped Site"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "undeveloped real estate site can be created."_L1,
    .deleteNoun = "undeveloped real estate site?"_L1,
    .reportsLoadFailure = true,
    .frames = undevelopedFrames,
    .parentType = 6,
    .children = undevelopedChildren,
};

constexpr ScreenDefinition realEstateGroup[] = {
    homesRented,
    rentals,
    homesOwned,
    businessSite,
    otherRealEstate,
    agSite,
    undeveloped,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> realEstateEntries() {
    return realEstateGroup;
}

}  // namespace screens
