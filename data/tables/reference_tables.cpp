#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

constexpr Column contacts[] = {
    {"Name"_L1,           "Contact:"_L1,      Text},
    {"Addr"_L1,           "Address:"_L1,      Text,     50},
    {"Relationship"_L1,   "Relationship:"_L1, Text,     50},
    {"City"_L1,           "City:"_L1,         City,     50},
    {"State"_L1,          "State:"_L1,        Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,            "Zip:"_L1,          Zip,      10},
    {"Email"_L1,          "Email:"_L1,        Text,     50},
    {"HomePhone"_L1,      "Home:"_L1,         Phone,    50},
    {"OfficePhone"_L1,    "Office:"_L1,       Phone,    50},
    {"Fax"_L1,            "Fax:"_L1,          Phone,    50},
    {"CellPhone"_L1,      "Cell:"_L1,         Phone,    50},
    {"EmergencyPhone"_L1, "Emergency:"_L1,    Phone,    50},
    {"Comment"_L1,        "Comment:"_L1,      LongText},
};

// Date is whatever stands on the cover.
constexpr Column coverPage[] = {
    {"Heading1"_L1,    "Main Heading:"_L1,  Text},
    {"SubHeading1"_L1, "Sub Heading 1:"_L1, Text},
    {"Heading2"_L1,    "Heading 2:"_L1,     Text},
    {"SubHeading2"_L1, "Sub Heading 2:"_L1, Text},
    {"Date"_L1,        "Date:"_L1,          Text},
};

// Person is a name in free text, not a reference.
constexpr Column whoGetsWhat[] = {
    {"Item"_L1,   "Item:"_L1,   Text},
    {"Person"_L1, "Person:"_L1, Text},
};

constexpr Column assetLiquidation[] = {
    {"Seq"_L1,        "Sequence:"_L1,   Whole},
    {"Asset"_L1,      "Asset:"_L1,      Text},
    {"Directions"_L1, "Directions:"_L1, LongText},
};

constexpr Table referenceGroup[] = {
    {"Contacts"_L1,         Keys::Counter, contacts},
    {"CoverPage"_L1,        Keys::Counter, coverPage},
    {"WhoGetsWhat"_L1,      Keys::Counter, whoGetsWhat},
    {"AssetLiquidation"_L1, Keys::Counter, assetLiquidation},
};

// clang-format on

}  // namespace

std::span<const Table> referenceTables() {
    return referenceGroup;
}

}  // namespace data
