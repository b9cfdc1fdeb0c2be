#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

// Seq is the order of display among the family. The Person window never writes it.
constexpr Column person[] = {
    {"Seq"_L1,             {},                    Whole,     0, {},              {}, Nowhere, Initially::Zero},
    {"LegalName"_L1,       "Legal Name:"_L1,      Text},
    {"BirthDate"_L1,       "Date:"_L1,            Date,      0, {},              {}, Box, {}, eachYear("Birthday"_L1)},
    {"Sex"_L1,             "Sex:"_L1,             Text,      1},
    {"BirthCity"_L1,       "City:"_L1,            City,     50},
    {"BirthCounty"_L1,     "County:"_L1,          Text,     50},
    {"BirthState"_L1,      "State:"_L1,           Text,      0, {},              {}, StateCombo},
    {"BirthCountry"_L1,    "Country:"_L1,         Text,     50},
    {"SocSecNum"_L1,       "SocSecNum:"_L1,       Text},
    {"BirthCertLoc"_L1,    "Birth Certificate/Organ Donor Card Location:"_L1, LongText},
    {"Comment"_L1,         "Comments:"_L1,        LongText},
    {"SocSecNumChange"_L1, "SocSecNumChange:"_L1, YesNo},
    {"WasAdopted"_L1,      "Was Adopted"_L1,      YesNo},
    {"IsMinor"_L1,         "Is Minor"_L1,         YesNo},
    {"InSchool"_L1,        "In School"_L1,        YesNo},
    {"LegalNameChange"_L1, "Name Change"_L1,      YesNo},
    {"OrganDonorCard"_L1,  "Organ Donor"_L1,      YesNo},
};

constexpr Column education[] = {
    {"School"_L1,        "School:"_L1,           Text,     50},
    {"City"_L1,          "City:"_L1,             City,     50},
    {"State"_L1,         "State:"_L1,            Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,           "Zip:"_L1,              Zip,      10},
    {"StartYear"_L1,     "Start Year:"_L1,       Number},
    {"EndYear"_L1,       "End Year:"_L1,         Number},
    {"HighestGrade"_L1,  "Highest Grade:"_L1,    Text,     50},
    {"DegreeAwarded"_L1, "Degree:"_L1,           Text,     50},
    {"AreaOfStudy"_L1,   "Area of Study:"_L1,    Text,     50},
    {"DegreeDate"_L1,    "Degree Date:"_L1,      Text},
    {"DiplomaLoc"_L1,    "Diploma Location:"_L1, LongText},
    {"Comment"_L1,       "Comment:"_L1,          LongText},
};

constexpr Column employers[] = {
    {"Employer"_L1,            "Employer:"_L1,         Text,     50},
    {"WorkPhone"_L1,           "Phone:"_L1,            Phone,    50},
    {"WorkAddr"_L1,            "Address:"_L1,          Text,     50},
    {"WorkCity"_L1,            "City:"_L1,             City,     50},
    {"WorkState"_L1,           "State:"_L1,            Text,      0, {},              {}, StateCombo},
    {"WorkZip"_L1,             "Zip:"_L1,              Zip,      10},
    {"Position"_L1,            "My Position:"_L1,      Text,     50},
    {"AnnualSalary"_L1,        "Annual Salary:"_L1,    Number,    0, "#,##0.00"_L1},
    {"HowOftenPaid"_L1,        "Paid:"_L1,             Text,     10, {},              "Monthly, weekly, etc."_L1},
    {"HireDate"_L1,            "Hire Date:"_L1,        Date},
    {"TerminationDate"_L1,     "Termination Date:"_L1, Date},
    {"Supervisor"_L1,          "Supervisor:"_L1,       Text,     50},
    {"SupervisorPosition"_L1,  "Position:"_L1,         Text,     50},
    {"PersonnelContact"_L1,    "Human Resources:"_L1,  Text,     50, {},              "Personnel Contact"_L1},
    {"PersonnelPhone"_L1,      "HR Phone:"_L1,         Phone,    50},
    {"Comment"_L1,             "Comment:"_L1,          LongText},
    {"Current"_L1,             "Current"_L1,           YesNo},
    {"ShortTermDisability"_L1, "Short Term D/I"_L1,    YesNo},
    {"RetirementPlan"_L1,      "Retirement"_L1,        YesNo},
    {"MajorMedical"_L1,        "Major Medical"_L1,     YesNo},
    {"Health"_L1,              "Health"_L1,            YesNo},
    {"Life"_L1,                "Life"_L1,              YesNo},
    {"LongTermDisability"_L1,  "Long Term D/I"_L1,     YesNo},
    {"Dental"_L1,              "Dental"_L1,            YesNo},
    {"Vision"_L1,              "Vision"_L1,            YesNo},
    {"OtherBenefits"_L1,       "Other Benefits"_L1,    YesNo},
};

constexpr Column militaryService[] = {
    {"MilitaryBranch"_L1,     "Branch:"_L1,            Text,     50},
    {"RankAchieved"_L1,       "Rank:"_L1,              Text,     50},
    {"ServiceNumber"_L1,      "Service Number:"_L1,    Text,     50},
    {"DateEntered"_L1,        "Date Entered:"_L1,      Text},
    {"DateDischarged"_L1,     "Date Discharged:"_L1,   Text},
    {"AwardsMedals"_L1,       "Awards and Medals:"_L1, LongText},
    {"PlacesServed"_L1,       "Places Served:"_L1,     LongText},
    {"DischargeDocLoc"_L1,    "Discharge Documents Location:"_L1, LongText},
    {"CommentVetBenefits"_L1, "Comment and Veterans Benefits Information:"_L1, LongText},
};

constexpr Column passports[] = {
    {"Citizenship"_L1,         "Nation of Citizenship:"_L1, Text,     50},
    {"ResAlienCardExpDate"_L1, "Resident Alien Card Expires:"_L1, Date,      0, {},              {}, Box, {}, ahead},
    {"ImmigrationDocsLoc"_L1,  "Immigration Documents Location:"_L1, LongText},
    {"PassportIDNumber"_L1,    "Passport ID:"_L1,           Text,     50},
    {"DateIssued"_L1,          "Date Issued:"_L1,           Date},
    {"DateExpired"_L1,         "Date Expired:"_L1,          Date,      0, {},              {}, Box, {}, ahead},
    {"PassportLoc"_L1,         "Passport Location:"_L1,     LongText},
    {"CitizenshipComment"_L1,  "Comment:"_L1,               LongText},
    {"Native"_L1,              "Native:"_L1,                YesNo},
    {"Immigrant"_L1,           "Immigrant:"_L1,             YesNo},
    {"Passport"_L1,            "Have Passport:"_L1,         YesNo},
};

constexpr Column religiousPreference[] = {
    {"ReligiousPreference"_L1, "Preference:"_L1,   Text,     50},
    {"LocalChurch"_L1,         "Local Church:"_L1, Text,     50},
    {"ChurchLeaderName"_L1,    "Local Leader:"_L1, Text,     50},
    {"ChurchLeaderAddr"_L1,    "Address:"_L1,      Text,     50},
    {"ChurchLeaderCity"_L1,    "City:"_L1,         City,     50},
    {"ChurchLeaderState"_L1,   "State:"_L1,        Text,      0, {},              {}, StateCombo},
    {"ChurchLeaderZip"_L1,     "Zip:"_L1,          Zip,      10},
    {"ChurchLeaderPhone"_L1,   "Home Phone:"_L1,   Phone,    50},
    {"ChurchPhone"_L1,         "Church Phone:"_L1, Phone,    50},
    {"ReligiousComment"_L1,    "Comment:"_L1,      LongText},
};

constexpr Column residences[] = {
    {"AddrLine"_L1,         "Address:"_L1,           Text,     50},
    {"AddrCity"_L1,         "City:"_L1,              City,     50},
    {"AddrState"_L1,        "State:"_L1,             Text,      0, {},              {}, StateCombo},
    {"AddrZip"_L1,          "Zip:"_L1,               Zip,      10},
    {"HomePhone"_L1,        "Residence Phone:"_L1,   Phone,    50},
    {"CellPhone"_L1,        "Cell:"_L1,              Phone,    50},
    {"WorkPhone"_L1,        "Work:"_L1,              Phone,    50},
    {"Email"_L1,            "Email:"_L1,             Text,     50},
    {"Comment"_L1,          "Comment:"_L1,           LongText},
    {"PrimaryResidence"_L1, "Primary Residence:"_L1, YesNo},
};

constexpr Table personGroup[] = {
    {"Person"_L1,              Keys::Counter, person},
    {"Education"_L1,           Keys::Owner,   education},
    {"Employers"_L1,           Keys::Owner,   employers},
    {"MilitaryService"_L1,     Keys::Owner,   militaryService},
    {"Passports"_L1,           Keys::Owner,   passports},
    {"ReligiousPreference"_L1, Keys::Owner,   religiousPreference},
    {"Residences"_L1,          Keys::Owner,   residences},
};

// clang-format on

}  // namespace

std::span<const Table> personTables() {
    return personGroup;
}

}  // namespace data
