#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

constexpr Column shotRecords[] = {
    {"HIBDate"_L1,       "HIB:"_L1,           Text,     50},
    {"HEPADate"_L1,      "Hepatitus A:"_L1,   Text,     50},
    {"HEPBDate"_L1,      "Hepatitus B:"_L1,   Text,     50},
    {"TWINRIXDate"_L1,   "TWINRIX:"_L1,       Text,     50},
    {"PNEUMOVAXDate"_L1, "PNEUMOVAX:"_L1,     Text,     50},
    {"PREVNARDate"_L1,   "PREVNAR:"_L1,       Text,     50},
    {"DTDate"_L1,        "DT:"_L1,            Text,     50},
    {"MMRDate"_L1,       "MMR:"_L1,           Text,     50},
    {"IPVDate"_L1,       "IPV:"_L1,           Text,     50},
    {"VARICELLADate"_L1, "VARICELLA"_L1,      Text,     50},
    {"COMVAXDate"_L1,    "COMVAX:"_L1,        Text,     50},
    {"SMALLPOXDate"_L1,  "SMALLPOX:"_L1,      Text,     50},
    {"Comment"_L1,       "Comment/Shot Record Location/Other Illnesses:"_L1, LongText},
    {"ChickenPox"_L1,    "Chicken Pox"_L1,    YesNo},
    {"Diphtheria"_L1,    "Diphtheria"_L1,     YesNo},
    {"Hepatitis"_L1,     "Hepatitis"_L1,      YesNo},
    {"Malaria"_L1,       "Malaria"_L1,        YesNo},
    {"Measles"_L1,       "Measles"_L1,        YesNo},
    {"Mumps"_L1,         "Mumps"_L1,          YesNo},
    {"Pneumonia"_L1,     "Pneumonia"_L1,      YesNo},
    {"Polio"_L1,         "Polio"_L1,          YesNo},
    {"Rubella"_L1,       "Rubella "_L1,       YesNo},
    {"ScarletFever"_L1,  "Scarlet Fever"_L1,  YesNo},
    {"Tonsillitis"_L1,   "Tonsillitis"_L1,    YesNo},
    {"Tuberculosis"_L1,  "Tuberculosis"_L1,   YesNo},
    {"Typhoid"_L1,       "Typhoid"_L1,        YesNo},
    {"WhoopingCough"_L1, "Whooping Cough"_L1, YesNo},
};

constexpr Column doctors[] = {
    {"Name"_L1,           "Doctor:"_L1,    Text},
    {"Clinic"_L1,         "Clinic:"_L1,    Text,     50},
    {"PracticeType"_L1,   "Type:"_L1,      Text,     50},
    {"AddrLine"_L1,       "Address:"_L1,   Text,     50},
    {"City"_L1,           "City:"_L1,      City,     50},
    {"State"_L1,          "State:"_L1,     Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,            "Zip:"_L1,       Zip,      10},
    {"OfficePhone"_L1,    "Office:"_L1,    Phone,    50},
    {"EmergencyPhone"_L1, "Emergency:"_L1, Phone,    50},
    {"Fax"_L1,            "Fax:"_L1,       Phone,    50},
    {"Comment"_L1,        "Comment:"_L1,   LongText},
};

constexpr Column medicalLog[] = {
    {"TreatmentStartDate"_L1, "Start Date:"_L1,  Date},
    {"TreatmentEndDate"_L1,   "End Date:"_L1,    Date},
    {"Description"_L1,        "Description:"_L1, LongText},
};

constexpr Table healthGroup[] = {
    {"ShotRecords"_L1, Keys::Owner,          shotRecords},
    {"Doctors"_L1,     Keys::Counter,        doctors},
    {"MedicalLog"_L1,  Keys::OwnerAndDoctor, medicalLog},
};

// clang-format on

}  // namespace

std::span<const Table> healthTables() {
    return healthGroup;
}

}  // namespace data
