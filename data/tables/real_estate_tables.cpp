#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

constexpr Column homeOwned[] = {
    {"Type"_L1,             "Type:"_L1,           Text,     50, {},              "Type:  House, Condo, Apt., etc."_L1},
    {"Description"_L1,      "Description:"_L1,    Text,     50},
    {"Addr"_L1,             "Address:"_L1,        Text,     50},
    {"Purpose"_L1,          "Purpose:"_L1,        Text,     50},
    {"City"_L1,             "City:"_L1,           City,     50},
    {"State"_L1,            "State:"_L1,          Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,              "Zip:"_L1,            Zip,      10},
    {"PurchasePrice"_L1,    "Purchase Price:"_L1, Number,    0, "#,##0.00"_L1},
    {"DatePurchased"_L1,    "Date Purchased:"_L1, Date},
    {"DateBuilt"_L1,        "Date Built:"_L1,     Date},
    {"Construction"_L1,     "Construction:"_L1,   Text,     50},
    {"Appraiser"_L1,        "Appraiser:"_L1,      Text,     50},
    {"AppraisalDate"_L1,    "Appraisal Date:"_L1, Date},
    {"Appraisal"_L1,        "Appraisal:"_L1,      Number,    0, "#,##0.00"_L1},
    {"OwnershipType"_L1,    "Ownership Type:"_L1, Text,      0, {},              "Trust, Joint, Individual"_L1},
    {"InsuranceCompany"_L1, "Insurance Co.:"_L1,  Text,     50},
    {"CoverageType"_L1,     "Coverage Type:"_L1,  Text,     50},
    {"Comment"_L1,          "Comment/Home,Survey, Appraisal Documents Locs/CoOwners:"_L1, LongText},
    {"Survey"_L1,           "Survey:"_L1,         YesNo},
};

constexpr Column homeRented[] = {
    {"Type"_L1,            "Type:"_L1,                 Text,     50, {}, "Type:  House, Condo, Apt., etc."_L1},
    {"Description"_L1,     "Description:"_L1,          Text,     50},
    {"Addr"_L1,            "Address:"_L1,              Text,     50},
    {"City"_L1,            "City:"_L1,                 City,     50},
    {"State"_L1,           "State:"_L1,                Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,             "Zip:"_L1,                  Zip,      10},
    {"RentalAmount"_L1,    "Rent:"_L1,                 Number,    0, "#,##0.00"_L1},
    {"HowWhenPaid"_L1,     "When Paid:"_L1,            Text,     50, {},              "Weekly, Monthly, Yearly"_L1},
    {"LengthOfLease"_L1,   "Length of Lease:"_L1,      Text,     50},
    {"LandLord"_L1,        "Landlord:"_L1,             Text,     50},
    {"LLPhone"_L1,         "Phone:"_L1,                Phone,    50},
    {"LLAddr"_L1,          "Address:"_L1,              Text,     50},
    {"LLCity"_L1,          "City:"_L1,                 City,     50, "#,##0.00"_L1},
    {"LLState"_L1,         "State:"_L1,                Text,      0, {},              {}, StateCombo},
    {"LLZip"_L1,           "Zip:"_L1,                  Zip,      10, {}, "Type:  House, Condo, Apt., etc."_L1},
    {"Comment"_L1,         "Comment/Documents Locations:"_L1, LongText},
    {"CanBeSubleased"_L1,  "Can Be Subleased:"_L1,     YesNo},
    {"RenterInsurance"_L1, "Has Renter Insurance:"_L1, YesNo},
};

constexpr Column businessRealEstate[] = {
    {"Type"_L1,          "Type:"_L1,            Text,     50, {}, "Type of Business: Restaurant, Motel, etc."_L1},
    {"Description"_L1,   "Description:"_L1,     Text,     50},
    {"Addr"_L1,          "Address:"_L1,         Text,     50},
    {"City"_L1,          "City:"_L1,            City,     50},
    {"State"_L1,         "State:"_L1,           Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,           "Zip:"_L1,             Zip,      10},
    {"LotSize"_L1,       "Lot Acreage:"_L1,     Number,    0, "#,##0.000"_L1},
    {"OwnershipType"_L1, "Ownership Type:"_L1,  Text,     50, {},              "Sole, Shared, etc."_L1},
    {"PurchasePrice"_L1, "Purchase Price:"_L1,  Number,    0, "#,##0.00"_L1},
    {"DatePurchased"_L1, "Purchase Date:"_L1,   Date},
    {"PurchasedFrom"_L1, "Seller:"_L1,          Text,     50},
    {"Realtor"_L1,       "Realtor:"_L1,         Text,     50, "#,##0.00"_L1},
    {"Contact"_L1,       "Realtor Contact:"_L1, Text,     50},
    {"RealtorPhone"_L1,  "Realtor Phone:"_L1,   Phone,    50},
    {"Comment"_L1,       "Comment/Land,Survey,Water Rights Documents Locs/CoOwners:"_L1, LongText},
    {"Survey"_L1,        "Survey"_L1,           YesNo},
    {"Mortgage"_L1,      "Mortgage"_L1,         YesNo},
};

constexpr Column agRealEstate[] = {
    {"CurrentUsage"_L1,  "Current Use:"_L1,     Text},
    {"Description"_L1,   "Description:"_L1,     Text},
    {"Addr"_L1,          "Address:"_L1,         Text},
    {"City"_L1,          "City:"_L1,            City},
    {"County"_L1,        "County:"_L1,          Text},
    {"State"_L1,         "State:"_L1,           Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,           "Zip:"_L1,             Zip,      10},
    {"Acreage"_L1,       "Acreage:"_L1,         Number,    0, "#,##0.000"_L1},
    {"OwnershipType"_L1, "Ownership Type:"_L1,  Text,      0, {},              "Sole, Shared, etc."_L1},
    {"PurchasePrice"_L1, "Purchase Price:"_L1,  Number,    0, "#,##0.00"_L1},
    {"DatePurchased"_L1, "Purchase Date:"_L1,   Date},
    {"PurchasedFrom"_L1, "Seller:"_L1,          Text},
    {"Realtor"_L1,       "Realtor:"_L1,         Text,      0, "#,##0.00"_L1},
    {"Contact"_L1,       "Realtor Contact:"_L1, Text},
    {"RealtorPhone"_L1,  "Realtor Phone:"_L1,   Phone},
    {"Comment"_L1,       "Comment/Land,Survey,Water Rights Documents Locs/CoOwners:"_L1, LongText},
    {"Survey"_L1,        "Survey"_L1,           YesNo},
    {"Mortgage"_L1,      "Mortgage"_L1,         YesNo},
    {"WaterRights"_L1,   "Water Rights"_L1,     YesNo},
};

constexpr Column rentalRealEstate[] = {
    {"Type"_L1,          "Type:"_L1,            Text,     50, {}, "Type:  Commercial, House, Condo, Apt., etc."_L1},
    {"Description"_L1,   "Description:"_L1,     Text,     50},
    {"Addr"_L1,          "Address:"_L1,         Text,     50},
    {"City"_L1,          "City:"_L1,            City,     50},
    {"County"_L1,        "County:"_L1,          Text,     50},
    {"State"_L1,         "State:"_L1,           Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,           "Zip:"_L1,             Zip,      10},
    {"LotSize"_L1,       "Acreage:"_L1,         Number,    0, "#,##0.000"_L1},
    {"OwnershipType"_L1, "Ownership Type:"_L1,  Text,     50, {},              "Sole, Shared, etc."_L1},
    {"PurchasePrice"_L1, "Purchase Price:"_L1,  Number,    0, "#,##0.00"_L1},
    {"DatePurchased"_L1, "Purchase Date:"_L1,   Date},
    {"PurchasedFrom"_L1, "Seller:"_L1,          Text,     50},
    {"Realtor"_L1,       "Realtor:"_L1,         Text,     50, "#,##0.00"_L1},
    {"Contact"_L1,       "Realtor Contact:"_L1, Text,     50},
    {"RealtorPhone"_L1,  "Realtor Phone:"_L1,   Phone,    50, {},              "Type:  House, Condo, Apt., etc."_L1},
    {"Comment"_L1,       "Comment/Rental,Survey Documents Locs/CoOwners:"_L1, LongText},
    {"Survey"_L1,        "Survey"_L1,           YesNo},
    {"Mortgage"_L1,      "Mortgage"_L1,         YesNo},
};

constexpr Column undevelopedRealEstate[] = {
    {"CurrentUsage"_L1,  "Current Use:"_L1,     Text,     50},
    {"Description"_L1,   "Description:"_L1,     Text,     50},
    {"Addr"_L1,          "Address:"_L1,         Text,     50},
    {"City"_L1,          "City:"_L1,            City,     50},
    {"County"_L1,        "County:"_L1,          Text,     50},
    {"State"_L1,         "State:"_L1,           Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,           "Zip:"_L1,             Zip,      10},
    {"LotSize"_L1,       "Acreage:"_L1,         Number,    0, "#,##0.000"_L1},
    {"OwnershipType"_L1, "Ownership Type:"_L1,  Text,     50, {},              "Sole, Shared, etc."_L1},
    {"PurchasePrice"_L1, "Purchase Price:"_L1,  Number,    0, "#,##0.00"_L1},
    {"DatePurchased"_L1, "Purchase Date:"_L1,   Date},
    {"PurchasedFrom"_L1, "Seller:"_L1,          Text,     50, {},              "Type:  House, Condo, Apt., etc."_L1},
    {"Realtor"_L1,       "Realtor:"_L1,         Text,     50, "#,##0.00"_L1},
    {"Contact"_L1,       "Realtor Contact:"_L1, Text,     50},
    {"RealtorPhone"_L1,  "Realtor Phone:"_L1,   Phone,    50},
    {"Comment"_L1,       "Comment/Land,Survey,Water Rights Documents Locs/CoOwners:"_L1, LongText},
    {"Survey"_L1,        "Survey"_L1,           YesNo},
    {"Mortgage"_L1,      "Mortgage"_L1,         YesNo},
    {"WaterRights"_L1,   "Water Rights"_L1,     YesNo},
};

constexpr Column otherRealEstate[] = {
    {"Type"_L1,          "Type:"_L1,            Text,     50, {},              "Type:  House, Condo, Apt., etc."_L1},
    {"Description"_L1,   "Description:"_L1,     Text,     50},
    {"Addr"_L1,          "Address:"_L1,         Text,     50},
    {"City"_L1,          "City:"_L1,            City,     50},
    {"County"_L1,        "County:"_L1,          Text,     50},
    {"State"_L1,         "State:"_L1,           Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,           "Zip:"_L1,             Zip,      10},
    {"LotSize"_L1,       "Acreage:"_L1,         Number,    0, "#,##0.000"_L1},
    {"OwnershipType"_L1, "Ownership Type:"_L1,  Text,     50, {},              "Sole, Shared, etc."_L1},
    {"PurchasePrice"_L1, "Purchase Price:"_L1,  Number,    0, "#,##0.00"_L1},
    {"DatePurchased"_L1, "Purchase Date:"_L1,   Date},
    {"CurrentUsage"_L1,  "Current Usage:"_L1,   Text,     50},
    {"PurchasedFrom"_L1, "Seller:"_L1,          Text,     50, {},              "Type:  House, Condo, Apt., etc."_L1},
    {"Realtor"_L1,       "Realtor:"_L1,         Text,     50, "#,##0.00"_L1},
    {"Contact"_L1,       "Realtor Contact:"_L1, Text,     50},
    {"RealtorPhone"_L1,  "Realtor Phone:"_L1,   Phone,    50},
    {"Comment"_L1,       "Comment/Land,Survey,Water Rights Documents Locs/CoOwners:"_L1, LongText},
    {"Survey"_L1,        "Survey"_L1,           YesNo},
    {"Mortgage"_L1,      "Mortgage"_L1,         YesNo},
    {"WaterRights"_L1,   "Water Rights"_L1,     YesNo},
};

constexpr Table realEstateGroup[] = {
    {"HomeOwned"_L1,             Keys::Owner, homeOwned},
    {"HomeRented"_L1,            Keys::Owner, homeRented},
    {"BusinessRealEstate"_L1,    Keys::Owner, businessRealEstate},
    {"AgRealEstate"_L1,          Keys::Owner, agRealEstate},
    {"RentalRealEstate"_L1,      Keys::Owner, rentalRealEstate},
    {"UndevelopedRealEstate"_L1, Keys::Owner, undevelopedRealEstate},
    {"OtherRealEstate"_L1,       Keys::Owner, otherRealEstate},
};

// clang-format on

}  // namespace

std::span<const Table> realEstateTables() {
    return realEstateGroup;
}

}  // namespace data
