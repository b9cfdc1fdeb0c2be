#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

constexpr Column parents[] = {
    {"FatherName"_L1,           "Father's Name:"_L1,    Text,     50},
    {"FatherAddr1"_L1,          "Address:"_L1,          Text,     50},
    {"FatherCity"_L1,           "City:"_L1,             City,     50},
    {"FatherState"_L1,          "State:"_L1,            Text,      0, {},              {}, StateCombo},
    {"FatherZip"_L1,            "Zip:"_L1,              Zip,      10},
    {"FatherEmail"_L1,          "Email:"_L1,            Text,     50},
    {"FatherPhone"_L1,          "Home Phone:"_L1,       Phone,    50},
    {"FatherCellPhone"_L1,      "Cell Phone:"_L1,       Phone,    50},
    {"FatherWorkPhone"_L1,      "Work Phone:"_L1,       Phone,    50},
    {"MotherName"_L1,           "Mother's Name:"_L1,    Text,     50},
    {"MotherAddr1"_L1,          "Address:"_L1,          Text,     50},
    {"MotherCity"_L1,           "City:"_L1,             City,     50},
    {"MotherState"_L1,          "State:"_L1,            Text,      0, {},              {}, StateCombo},
    {"MotherZip"_L1,            "Zip:"_L1,              Zip,      10},
    {"MotherEmail"_L1,          "Email:"_L1,            Text,     50},
    {"MotherPhone"_L1,          "Home Phone:"_L1,       Phone,    50},
    {"MotherCellPhone"_L1,      "Cell Phone:"_L1,       Phone,    50},
    {"MotherWorkPhone"_L1,      "Work Phone:"_L1,       Phone,    50},
    {"ParentComment"_L1,        "Comment:"_L1,          LongText},
    {"FatherAlive"_L1,          "Father Living:"_L1,    YesNo},
    {"FatherMotherTogether"_L1, "Parents Together:"_L1, YesNo},
    {"MotherAlive"_L1,          "Mother Living:"_L1,    YesNo},
};

// Status is chosen from a list of its own, Date is the wedding, DeathDate that of the one whom the member married.
constexpr Column marriage[] = {
    {"MarriedTo"_L1,       "Married To:"_L1,              Text,     50},
    {"Date"_L1,            "Date Married:"_L1,            Date,      0, {},              {}, Box, {}, eachYear("Wedding day"_L1)},
    {"PerformedBy"_L1,     "Married By:"_L1,              Text,     50},
    {"Status"_L1,          "Status:"_L1,                  Text,      0, {},              {}, StatusCombo},
    {"City"_L1,            "City:"_L1,                    City,     50},
    {"County"_L1,          "County:"_L1,                  Text,     50},
    {"State"_L1,           "State:"_L1,                   Text,      0, {},              {}, StateCombo},
    {"DeathDate"_L1,       "Death Date:"_L1,              Date,      0, {},              {}, Box, {}, returnsNoMore},
    {"DivorceDate"_L1,     "Divorce Date:"_L1,            Date,      0, {},              {}, Box, {}, returnsNoMore},
    {"LicenseLoc"_L1,      "Marriage License Location:"_L1, LongText},
    {"DeathCertLoc"_L1,    "Death Certificate Location:"_L1, LongText},
    {"DivorcePaperLoc"_L1, "Divorce Papers Location:"_L1, LongText},
    {"Comment"_L1,         "Comment:"_L1,                 LongText},
};

constexpr Column organizations[] = {
    {"Organization"_L1,        "Organization:"_L1,  Text,     50},
    {"LocalBranch"_L1,         "Local Branch:"_L1,  Text,     50},
    {"Addr"_L1,                "Address:"_L1,       Text,     50},
    {"City"_L1,                "City:"_L1,          City,     50},
    {"State"_L1,               "State:"_L1,         Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,                 "Zip:"_L1,           Zip,      10},
    {"Contact"_L1,             "Contact:"_L1,       Text,     50},
    {"Phone"_L1,               "Phone:"_L1,         Phone,    50, "#,##0.00"_L1},
    {"Dues"_L1,                "Dues:"_L1,          Number,    0, "#,##0.00"_L1},
    {"DuesPer"_L1,             "Dues Per:"_L1,      Text,     50, {},              "Weekly, Monthly, etc."_L1},
    {"Comment"_L1,             "Comment:"_L1,       LongText},
    {"Professional"_L1,        "Professional"_L1,   YesNo},
    {"Local"_L1,               "Local"_L1,          YesNo},
    {"Life"_L1,                "Life"_L1,           YesNo},
    {"Retirement"_L1,          "Retirement"_L1,     YesNo},
    {"Health"_L1,              "Health"_L1,         YesNo},
    {"MajorMedical"_L1,        "Major Medical"_L1,  YesNo},
    {"ShortTermDisability"_L1, "Short Term D/I"_L1, YesNo},
    {"CreditUnion"_L1,         "Credit Union"_L1,   YesNo},
    {"Dental"_L1,              "Dental"_L1,         YesNo},
    {"Vision"_L1,              "Vision"_L1,         YesNo},
    {"Other"_L1,               "Other Benefits"_L1, YesNo},
    {"LongTermDisability"_L1,  "Long Term D/I"_L1,  YesNo},
    {"LongTermCare"_L1,        "Long Term Care"_L1, YesNo},
};

constexpr Column memberships[] = {
    {"OrgName"_L1,        "Organization:"_L1,    Text,     50},
    {"OrgType"_L1,        "Type:"_L1,            Text,     50},
    {"Contact"_L1,        "Contact:"_L1,         Text,     50},
    {"Phone"_L1,          "Phone:"_L1,           Phone,    50},
    {"Addr"_L1,           "Address:"_L1,         Text,     50},
    {"City"_L1,           "City:"_L1,            City,     50},
    {"State"_L1,          "State:"_L1,           Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,            "Zip:"_L1,             Zip,      10},
    {"MemIDNum"_L1,       "ID Number:"_L1,       Text,     50},
    {"Standing"_L1,       "Standing:"_L1,        Text,     50},
    {"Dues"_L1,           "Dues:"_L1,            Number,    0, "#,##0.00"_L1},
    {"DuesPer"_L1,        "Dues Per:"_L1,        Text,     50, {},              paymentModes},
    {"ExpirationDate"_L1, "Expiration Date:"_L1, Date,      0, {},              {}, Box, {}, ahead},
    {"Comment"_L1,        "Comment:"_L1,         LongText},
};

// Mort.. is the mortuary, and Phone is its too; the plain names are the cemetery.
constexpr Column funeral[] = {
    {"Mortuary"_L1,        "Mortuary:"_L1,            Text,     50},
    {"Phone"_L1,           "Phone:"_L1,               Phone,    50},
    {"MortAddrLine1"_L1,   "Address:"_L1,             Text,     50},
    {"MortCity"_L1,        "City:"_L1,                City,     50},
    {"MortState"_L1,       "State:"_L1,               Text,      0, {},              {}, StateCombo},
    {"MortZip"_L1,         "Zip:"_L1,                 Zip,      10},
    {"BodyDisposition"_L1, "Burial Type:"_L1,         Text,     50},
    {"Cemetery"_L1,        "Cemetery:"_L1,            Text,     50},
    {"PlotLoc"_L1,         "Plot Loc:"_L1,            Text,     50},
    {"AddrLine1"_L1,       "Address:"_L1,             Text,     50},
    {"City"_L1,            "City:"_L1,                City,     50},
    {"State"_L1,           "State:"_L1,               Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,             "Zip:"_L1,                 Zip,      10},
    {"PlotDeedsLoc"_L1,    "Plot Deeds Location:"_L1, LongText},
    {"Comment"_L1,         "Comment, Obituary, Headstone:"_L1, LongText},
    {"BurialInsurance"_L1, "Insurance:"_L1,           YesNo},
    {"PrePaidPlan"_L1,     "Prepaid Plan:"_L1,        YesNo},
    {"LongTermCare"_L1,    "Perpetual Care:"_L1,      YesNo},
};

constexpr Column legalInfo[] = {
    {"TrustDate"_L1,           "Trust Date:"_L1,              Date},
    {"WillLastChangedDate"_L1, "Will Date:"_L1,               Date},
    {"TrustsLoc"_L1,           "Trust Location:"_L1,          LongText},
    {"WillLoc"_L1,             "Will Location:"_L1,           LongText},
    {"PattName"_L1,            "Power of Attorney Name:"_L1,  Text,     50},
    {"PattAddr1"_L1,           "Address:"_L1,                 Text,     50},
    {"PattPhone"_L1,           "Phone:"_L1,                   Phone,    50},
    {"PattCity"_L1,            "City:"_L1,                    City,     50},
    {"PattState"_L1,           "State:"_L1,                   Text,      0, {},              {}, StateCombo},
    {"PattZip"_L1,             "Zip:"_L1,                     Zip,      10},
    {"Comment"_L1,             "Comment/Will and Trust Attorneys:"_L1, LongText},
    {"AnyTrusts"_L1,           "Trusts:"_L1,                  YesNo},
    {"HaveWill"_L1,            "Have Will:"_L1,               YesNo},
    {"PowerOfAttorney"_L1,     "Power of Attorney Given:"_L1, YesNo},
    {"Sued"_L1,                "Sued:"_L1,                    YesNo},
    {"SuitSettled"_L1,         "Suit Settled:"_L1,            YesNo},
    {"CurrentlySuing"_L1,      "Currently Suing:"_L1,         YesNo},
    {"InvolvedInLawsuits"_L1,  "Other Lawsuits:"_L1,          YesNo},
};

constexpr Column safetyDeposit[] = {
    {"Institution"_L1,   "Institution:"_L1,             Text,     50},
    {"Phone"_L1,         "Phone:"_L1,                   Phone,    50},
    {"Addr"_L1,          "Address:"_L1,                 Text,     50},
    {"City"_L1,          "City:"_L1,                    City,     50},
    {"State"_L1,         "State:"_L1,                   Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,           "Zip:"_L1,                     Zip,      10},
    {"BoxNumber"_L1,     "Box Number:"_L1,              Text,     50},
    {"CostOfBox"_L1,     "Cost of Box:"_L1,             Number,    0, "0.00"_L1},
    {"WhenPaid"_L1,      "When Paid:"_L1,               Text,     50, {},              paymentModes},
    {"KeyLoc"_L1,        "Key Location:"_L1,            Text,     50},
    {"AccessorName"_L1,  "Other User Name:"_L1,         Text,     50},
    {"AccessorPhone"_L1, "Other User Phone:"_L1,        Phone,    50},
    {"Comment"_L1,       "Comment/Contents of Box:"_L1, LongText},
};

constexpr Table familyGroup[] = {
    {"Parents"_L1,       Keys::Owner, parents},
    {"Marriage"_L1,      Keys::Owner, marriage},
    {"Organizations"_L1, Keys::Owner, organizations},
    {"Memberships"_L1,   Keys::Owner, memberships},
    {"Funeral"_L1,       Keys::Owner, funeral},
    {"LegalInfo"_L1,     Keys::Owner, legalInfo},
    {"SafetyDeposit"_L1, Keys::Owner, safetyDeposit},
};

// clang-format on

}  // namespace

std::span<const Table> familyTables() {
    return familyGroup;
}

}  // namespace data
