#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

// The location is that of the site the row hangs on: shown, never stored.
constexpr Column inventory[] = {
    {{},                 "Location:"_L1,       Text,     50},
    {"Type"_L1,          "Type:"_L1,           Text,     50},
    {"Cost"_L1,          "Cost:"_L1,           Number,    0, "#,##0.00"_L1},
    {"YearPurchased"_L1, "Year Purchased:"_L1, Number},
    {"Description"_L1,   "Comment:"_L1,        LongText},
};

// The year is that of completion; the column keeps the name it has in the two sister tables.
constexpr Column improvements[] = {
    {{},                 "Location:"_L1,       Text,     50},
    {"Type"_L1,          "Type:"_L1,           Text,     50},
    {"Cost"_L1,          "Cost:"_L1,           Number,    0, "#,##0.00"_L1},
    {"YearPurchased"_L1, "Year Completed:"_L1, Number},
    {"Description"_L1,   "Comment:"_L1,        LongText},
};

constexpr Column outbuildings[] = {
    {{},                 "Location:"_L1,       Text,     50},
    {"Type"_L1,          "Type:"_L1,           Text,     50},
    {"Cost"_L1,          "Cost:"_L1,           Number,    0, "#,##0.00"_L1},
    {"YearPurchased"_L1, "Year Purchased:"_L1, Number},
    {"Description"_L1,   "Comment:"_L1,        LongText},
};

constexpr Column antiques[] = {
    {"Antique"_L1,           "Antique:"_L1,            Text,     50},
    {"PurchasePrice"_L1,     "Purchase Price:"_L1,     Number,    0, "#,##0.00"_L1},
    {"Description"_L1,       "Description:"_L1,        Text,     50},
    {"AcquiredFrom"_L1,      "Acquired From:"_L1,      Text,     50},
    {"AcquiredWhere"_L1,     "Where:"_L1,              Text,     50},
    {"DateAcquired"_L1,      "Date Acquired:"_L1,      Date},
    {"ValueWhenAcquired"_L1, "Value:"_L1,              Number,    0, "#,##0.00"_L1},
    {"ValuationDate"_L1,     "Valuation Date:"_L1,     Date},
    {"ValuationMethod"_L1,   "Method:"_L1,             Text,     50},
    {"Value"_L1,             "Value:"_L1,              Number,    0, "#,##0.00"_L1},
    {"AppraisalDate"_L1,     "Appraisal Date:"_L1,     Date},
    {"AppraisedBy"_L1,       "Appraised By:"_L1,       Text,     50},
    {"Location"_L1,          "Location:"_L1,           Text,     50},
    {"Policy"_L1,            "Policy:"_L1,             Text,     50},
    {"DocsLoc"_L1,           "Documents Location:"_L1, Text,     50},
    {"Comment"_L1,           "Comment:"_L1,            LongText},
    {"Insured"_L1,           "Insured:"_L1,            YesNo},
};

constexpr Column collectibles[] = {
    {"CatalogNum"_L1,        "ID:"_L1,                 Text,     50},
    {"Type"_L1,              "Type:"_L1,               Text,     50},
    {"PurchasePrice"_L1,     "Purchase Price:"_L1,     Number,    0, "#,##0.00"_L1},
    {"Description"_L1,       "Description:"_L1,        Text,     50},
    {"AcquiredFrom"_L1,      "Acquired From:"_L1,      Text,     50},
    {"AcquiredWhere"_L1,     "Where:"_L1,              Text,     50},
    {"DateAcquired"_L1,      "Date Acquired:"_L1,      Date},
    {"ValueWhenAcquired"_L1, "Value:"_L1,              Number,    0, "#,##0.00"_L1},
    {"ValuationDate"_L1,     "Valuation Date:"_L1,     Date},
    {"ValuationMethod"_L1,   "Method:"_L1,             Text,     50},
    {"Value"_L1,             "Value:"_L1,              Number,    0, "#,##0.00"_L1},
    {"AppraisalDate"_L1,     "Appraisal Date:"_L1,     Date},
    {"AppraisedBy"_L1,       "Appraised By:"_L1,       Text,     50},
    {"Location"_L1,          "Location:"_L1,           Text,     50},
    {"Policy"_L1,            "Policy:"_L1,             Text,     50},
    {"DocsLoc"_L1,           "Documents Location:"_L1, Text,     50},
    {"Comment"_L1,           "Comment:"_L1,            LongText},
    {"Insured"_L1,           "Insured:"_L1,            YesNo},
};

// Reg.. is where it is registered; Addr to Phone belong to the title holder.
constexpr Column vehicles[] = {
    {"Type"_L1,             "Vehicle Type:"_L1,       Text,     50},
    {"Make"_L1,             "Make:"_L1,               Text,     50},
    {"Model"_L1,            "Model:"_L1,              Text,     50},
    {"Year"_L1,             "Year:"_L1,               Number},
    {"Color"_L1,            "Color:"_L1,              Text,     50},
    {"VIN"_L1,              "VIN:"_L1,                Text,     50},
    {"RegCounty"_L1,        "County:"_L1,             Text,     50, "#,##0.00"_L1},
    {"RegState"_L1,         "State:"_L1,              Text,      0, {},              {}, StateCombo},
    {"LicensePlate"_L1,     "License Plate:"_L1,      Text,     50},
    {"ExpDate"_L1,          "Exp. Date:"_L1,          Text},
    {"StateTitleNumber"_L1, "State Title Number:"_L1, Text,     50},
    {"TitleHolder"_L1,      "Title Holder:"_L1,       Text,     50},
    {"Phone"_L1,            "Phone:"_L1,              Phone,    50},
    {"Addr"_L1,             "Address:"_L1,            Text,     50},
    {"City"_L1,             "City:"_L1,               City,     50},
    {"State"_L1,            "State:"_L1,              Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,              "Zip:"_L1,                Zip,      10},
    {"Comment"_L1,          "Comment/Documents Locations:"_L1, LongText},
    {"PaidFor"_L1,          "Paid For"_L1,            YesNo},
    {"TitlePossession"_L1,  "Title Possession"_L1,    YesNo},
};

constexpr Column otherProperty[] = {
    {"Type"_L1,          "Type:"_L1,           Text,     50, {}, "Type:  Boat, Trailer, Snowmobile, etc."_L1},
    {"PurchasePrice"_L1, "Price:"_L1,          Number,    0, "#,##0.00"_L1},
    {"DateAcquired"_L1,  "Date Acquired:"_L1,  Date},
    {"WhereAcquired"_L1, "Where Acquired:"_L1, Text,     50},
    {"HowAcquired"_L1,   "How Acquired:"_L1,   Text,     50},
    {"Value"_L1,         "Value:"_L1,          Number,    0, "#,##0.00"_L1},
    {"ValuationDate"_L1, "Valuation Date:"_L1, Date},
    {"Location"_L1,      "Location:"_L1,       Text,     50},
    {"Comment"_L1,       "Comment/Documents Locations/Description:"_L1, LongText},
};

constexpr Table propertyGroup[] = {
    {"Inventory"_L1,     Keys::Parent, inventory},
    {"Improvements"_L1,  Keys::Parent, improvements},
    {"Outbuildings"_L1,  Keys::Parent, outbuildings},
    {"Antiques"_L1,      Keys::Owner,  antiques},
    {"Collectibles"_L1,  Keys::Owner,  collectibles},
    {"Vehicles"_L1,      Keys::Owner,  vehicles},
    {"OtherProperty"_L1, Keys::Owner,  otherProperty},
};

// clang-format on

}  // namespace

std::span<const Table> propertyTables() {
    return propertyGroup;
}

}  // namespace data
