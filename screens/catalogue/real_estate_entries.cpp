#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

// The owner of a rented home is somebody else: here the member is the renter.
constexpr ComboColumn homesRentedCombos[] = {
    {1, "State"_L1, 5},
    {2, "LLState"_L1, 14},
};
constexpr FieldCheck homesRentedChecks[] = {{7, Check::Number}};
constexpr Frame homesRentedFrames[] = {
    {0, "Renter Information"_L1, {0, 0}, {}},
    {1, "Rental Information"_L1, {1, 15}, {0, 1}},
    {2, "Comment/Documents Locations"_L1, {16, 16}, {}},
};
constexpr ChildOffer homesRentedChildren[] = {{ChildKind::Inventory, "Rental Inventory of "_L1, "Show Inventory"_L1}};
constexpr ScreenDefinition homesRented{
    .name = "frmHomesRented"_L1,
    .table = "HomeRented"_L1,
    .recordset = "adoHomesRentedRS"_L1,
    .title = "Home Rented By -- "_L1,
    .attachmentPrefix = "Hrn_"_L1,
    .addCaption = "&Add New Home"_L1,
    .ownerLabel = "Renter:"_L1,
    .refusal = noRenter,
    .saveEnding = "rented home can be created."_L1,
    .deleteNoun = "rented home?"_L1,
    .reportsLoadFailure = true,
    .combos = homesRentedCombos,
    .checks = homesRentedChecks,
    .frames = homesRentedFrames,
    .parentType = 2,
    .children = homesRentedChildren,
};

constexpr ComboColumn rentalsCombos[] = {{1, "State"_L1, 6}};
constexpr DateColumn rentalsDates[] = {{11, "DatePurchased"_L1}};
constexpr FieldCheck rentalsChecks[] = {
    {8, Check::Number},
    {10, Check::Number},
    {11, Check::Date},
};
constexpr Frame rentalsFrames[] = {
    {0, "Owner Information"_L1, {0, 0}, {}},
    {1, "Rental Information"_L1, {1, 15}, {0, 1}},
    {2, "Comment/Rental,Survey Documents Locations/CoOwner Information"_L1, {16, 16}, {}},
};
constexpr ChildOffer rentalsChildren[] = {
    {ChildKind::Inventory, "Rental Inventory of "_L1, "Show Inventory"_L1},
    {ChildKind::Improvements, "Rental Improvements of "_L1, "Show Improvements"_L1},
    {ChildKind::Outbuildings, "Rental Outbuildings of "_L1, "Show Outbuildings"_L1},
};
constexpr ScreenDefinition rentals{
    .name = "frmRentals"_L1,
    .table = "RentalRealEstate"_L1,
    .recordset = "adoRentalRS"_L1,
    .title = "Rental Site Owned By -- "_L1,
    .attachmentPrefix = "Rnt_"_L1,
    .addCaption = "&Add New Rental"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "rental site can be created."_L1,
    .deleteNoun = "rental site?"_L1,
    .reportsLoadFailure = true,
    .combos = rentalsCombos,
    .dates = rentalsDates,
    .checks = rentalsChecks,
    .frames = rentalsFrames,
    .parentType = 5,
    .children = rentalsChildren,
};

constexpr ComboColumn homesOwnedCombos[] = {{1, "State"_L1, 6}};
constexpr DateColumn homesOwnedDates[] = {
    {9, "DatePurchased"_L1},
    {10, "DateBuilt"_L1},
    {13, "AppraisalDate"_L1},
};
constexpr FieldCheck homesOwnedChecks[] = {
    {8, Check::Number},
    {9, Check::Date},
    {10, Check::Date},
    {13, Check::Date},
    {14, Check::Number},
};
constexpr Frame homesOwnedFrames[] = {
    {0, "Owner Information"_L1, {0, 0}, {}},
    {1, "Home Information"_L1, {1, 17}, {0, 0}},
    {2, "Comment/Home,Survey,Appraisal Documents Locations/CoOwner Information"_L1, {18, 18}, {}},
};
constexpr ChildOffer homesOwnedChildren[] = {
    {ChildKind::Inventory, "House Inventory of "_L1, "Show House Inventory"_L1},
    {ChildKind::Improvements, "House Improvements of "_L1, "Show Home Improvements"_L1},
};
constexpr ScreenDefinition homesOwned{
    .name = "frmHomesOwned"_L1,
    .table = "HomeOwned"_L1,
    .recordset = "adoHomesOwnedRS"_L1,
    .title = "Home Owned By -- "_L1,
    .attachmentPrefix = "Hom_"_L1,
    .addCaption = "&Add New Home"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "home can be created."_L1,
    .deleteNoun = "home?"_L1,
    .reportsLoadFailure = true,
    .combos = homesOwnedCombos,
    .dates = homesOwnedDates,
    .checks = homesOwnedChecks,
    .frames = homesOwnedFrames,
    .parentType = 1,
    .children = homesOwnedChildren,
};

constexpr ComboColumn businessSiteCombos[] = {{1, "State"_L1, 5}};
constexpr DateColumn businessSiteDates[] = {{10, "DatePurchased"_L1}};
constexpr FieldCheck businessSiteChecks[] = {
    {7, Check::Number},
    {9, Check::Number},
    {10, Check::Date},
};
constexpr Frame businessSiteFrames[] = {
    {0, "Owner Information"_L1, {0, 0}, {}},
    {1, "Business Site Information"_L1, {1, 14}, {0, 1}},
    {2, "Comment/Home,Survey,Appraisal Documents Locations/CoOwner Information"_L1, {15, 15}, {}},
};
constexpr ChildOffer businessSiteChildren[] = {
    {ChildKind::Inventory, "Business Inventory of "_L1, "Show Inventory"_L1},
    {ChildKind::Improvements, "Improvements of "_L1, "Show Improvements"_L1},
    {ChildKind::Outbuildings, "Outbuildings of "_L1, "Show Outbuildings"_L1},
};
constexpr ScreenDefinition businessSite{
    .name = "frmBusinessSite"_L1,
    .table = "BusinessRealEstate"_L1,
    .recordset = "adoBusinessSiteRS"_L1,
    .title = "Business Site Owned By -- "_L1,
    .attachmentPrefix = "Bss_"_L1,
    .addCaption = "&Add New Business Site"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "business site can be created."_L1,
    .deleteNoun = "business site?"_L1,
    .reportsLoadFailure = true,
    .combos = businessSiteCombos,
    .dates = businessSiteDates,
    .checks = businessSiteChecks,
    .frames = businessSiteFrames,
    .parentType = 3,
    .children = businessSiteChildren,
};

constexpr ComboColumn otherRealEstateCombos[] = {{1, "State"_L1, 6}};
constexpr DateColumn otherRealEstateDates[] = {{11, "DatePurchased"_L1}};
constexpr FieldCheck otherRealEstateChecks[] = {
    {8, Check::Number},
    {10, Check::Number},
    {11, Check::Date},
};
constexpr Frame otherRealEstateFrames[] = {
    {0, "Owner Information"_L1, {0, 0}, {}},
    {1, "Other Real Estate Site Information"_L1, {1, 16}, {0, 2}},
    {2, "Comment/Land,Survey,Water Rights Documents Locations/CoOwner Information"_L1, {17, 17}, {}},
};
constexpr ChildOffer otherRealEstateChildren[] = {
    {ChildKind::Inventory, "Inventory of "_L1, "Show Inventory"_L1},
    {ChildKind::Improvements, "Improvements of "_L1, "Show Improvements"_L1},
    {ChildKind::Outbuildings, "Outbuildings of "_L1, "Show Outbuildings"_L1},
};
constexpr ScreenDefinition otherRealEstate{
    .name = "frmOtherRealEstate"_L1,
    .table = "OtherRealEstate"_L1,
    .recordset = "adoOtherRealEstateRS"_L1,
    .title = "Other Real Estate Site Owned By -- "_L1,
    .attachmentPrefix = "Ore_"_L1,
    .addCaption = "&Add New Other Real Estate"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "other real estate site can be created."_L1,
    .deleteNoun = "other real estate site?"_L1,
    .reportsLoadFailure = true,
    .combos = otherRealEstateCombos,
    .dates = otherRealEstateDates,
    .checks = otherRealEstateChecks,
    .frames = otherRealEstateFrames,
    .parentType = 7,
    .children = otherRealEstateChildren,
};

constexpr ComboColumn agSiteCombos[] = {{1, "State"_L1, 6}};
constexpr DateColumn agSiteDates[] = {{11, "DatePurchased"_L1}};
constexpr FieldCheck agSiteChecks[] = {
    {8, Check::Number},
    {10, Check::Number},
    {11, Check::Date},
};
constexpr Frame agSiteFrames[] = {
    {0, "Owner Information"_L1, {0, 0}, {}},
    {1, "Agricultural Site Information"_L1, {1, 15}, {0, 2}},
    {2, "Comment/Land,Survey,Water Rights Documents Locations/CoOwner Information"_L1, {16, 16}, {}},
};
constexpr ChildOffer agSiteChildren[] = {
    {ChildKind::Inventory, "Business Inventory of "_L1, "Show Inventory"_L1},
    {ChildKind::Improvements, "Improvements of "_L1, "Show Improvements"_L1},
    {ChildKind::Outbuildings, "Outbuildings of "_L1, "Show Outbuildings"_L1},
};
constexpr ScreenDefinition agSite{
    .name = "frmAgSite"_L1,
    .table = "AgRealEstate"_L1,
    .recordset = "adoAgSiteRS"_L1,
    .title = "Agricultural Site Owned By -- "_L1,
    .attachmentPrefix = "Ags_"_L1,
    .addCaption = "&Add New Ag Site"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "agricultural site can be created."_L1,
    .deleteNoun = "agricultural site?"_L1,
    .reportsLoadFailure = true,
    .combos = agSiteCombos,
    .dates = agSiteDates,
    .checks = agSiteChecks,
    .frames = agSiteFrames,
    .parentType = 4,
    .children = agSiteChildren,
};

constexpr ComboColumn undevelopedCombos[] = {{1, "State"_L1, 6}};
constexpr DateColumn undevelopedDates[] = {{11, "DatePurchased"_L1}};
constexpr FieldCheck undevelopedChecks[] = {
    {8, Check::Number},
    {10, Check::Number},
    {11, Check::Date},
};
constexpr Frame undevelopedFrames[] = {
    {0, "Owner Information"_L1, {0, 0}, {}},
    {1, "Undeveloped Real Estate Site Information"_L1, {1, 15}, {0, 2}},
    {2, "Comment/Land,Survey,Water Rights Documents Locations/CoOwner Information"_L1, {16, 16}, {}},
};
constexpr ChildOffer undevelopedChildren[] = {
    {ChildKind::Inventory, "Inventory of "_L1, "Show Inventory"_L1},
    {ChildKind::Improvements, "Improvements of "_L1, "Show Improvements"_L1},
    {ChildKind::Outbuildings, "Outbuildings of "_L1, "Show Outbuildings"_L1},
};
constexpr ScreenDefinition undeveloped{
    .name = "frmUndeveloped"_L1,
    .table = "UndevelopedRealEstate"_L1,
    .recordset = "adoUndevelopedRS"_L1,
    .title = "Undeveloped Real Estate Site Owned By -- "_L1,
    .attachmentPrefix = "Udv_"_L1,
    .addCaption = "&Add New Undeveloped Site"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "undeveloped real estate site can be created."_L1,
    .deleteNoun = "undeveloped real estate site?"_L1,
    .reportsLoadFailure = true,
    .combos = undevelopedCombos,
    .dates = undevelopedDates,
    .checks = undevelopedChecks,
    .frames = undevelopedFrames,
    .parentType = 6,
    .children = undevelopedChildren,
};

constexpr ScreenDefinition entries[] = {
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
    return entries;
}

}  // namespace screens
