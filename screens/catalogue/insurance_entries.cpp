#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr ComboColumn homeInsuranceCombos[] = {{1, "State"_L1, 5}};
constexpr DateColumn homeInsuranceDates[] = {{10, "ExpirationDate"_L1}};
constexpr FieldCheck homeInsuranceChecks[] = {
    {7, Check::Number},
    {8, Check::Number},
    {10, Check::Date},
};
constexpr Frame homeInsuranceFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Home Owner's Insurance Information"_L1, {1, 14}, {}},
    {2, "Comment/Document Location"_L1, {15, 15}, {}},
};
constexpr ScreenDefinition homeInsurance{
    .name = "frmHomeInsurance"_L1,
    .table = "HomeInsurance"_L1,
    .recordset = "adoHomeInsuranceRS"_L1,
    .title = "Home Owner's Insurance Of -- "_L1,
    .attachmentPrefix = "Hin_"_L1,
    .addCaption = "&Add New Home Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "home owner's insurance information can be created."_L1,
    .deleteNoun = "home owner's insurance information?"_L1,
    .combos = homeInsuranceCombos,
    .dates = homeInsuranceDates,
    .checks = homeInsuranceChecks,
    .frames = homeInsuranceFrames,
};

// The ending names another subject than the screen's, and is meant to.
constexpr DateColumn autoInsuranceDates[] = {{6, "ExpirationDate"_L1}};
constexpr FieldCheck autoInsuranceChecks[] = {
    {4, Check::Number},
    {6, Check::Date},
    {7, Check::Number},
};
constexpr Frame autoInsuranceFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Auto Insurance Information"_L1, {1, 11}, {0, 0}},
    {2, "Covered Drivers"_L1, {12, 12}, {}},
    {3, "Comment/Documents Location"_L1, {13, 13}, {}},
};
constexpr ScreenDefinition autoInsurance{
    .name = "frmAutoInsurance"_L1,
    .table = "AutoInsurance"_L1,
    .recordset = "adoAutoInsuranceRS"_L1,
    .title = "Auto Insurance Information Of -- "_L1,
    .attachmentPrefix = "Ain_"_L1,
    .addCaption = "&Add New Auto Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "life insurance information can be created."_L1,
    .deleteNoun = "auto insurance information?"_L1,
    .dates = autoInsuranceDates,
    .checks = autoInsuranceChecks,
    .frames = autoInsuranceFrames,
};

constexpr DateColumn supplementalInsuranceDates[] = {{3, "EffectiveDate"_L1}};
constexpr FieldCheck supplementalInsuranceChecks[] = {
    {3, Check::Date},
    {4, Check::Number},
};
constexpr Frame supplementalInsuranceFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Supplemental Insurance Information"_L1, {1, 9}, {}},
    {2, "Comment/Documents Location"_L1, {10, 10}, {}},
};
constexpr ScreenDefinition supplementalInsurance{
    .name = "frmSupplementalInsurance"_L1,
    .table = "SupplementalInsurance"_L1,
    .recordset = "adoSupplementalInsuranceRS"_L1,
    .title = "Supplemental Insurance Information Of -- "_L1,
    .attachmentPrefix = "Sup_"_L1,
    .addCaption = "&Add New Supplemental Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "supplemental insurance information can be created."_L1,
    .deleteNoun = "supplemental insurance information?"_L1,
    .dates = supplementalInsuranceDates,
    .checks = supplementalInsuranceChecks,
    .frames = supplementalInsuranceFrames,
};

constexpr FieldCheck disabilityInsuranceChecks[] = {
    {3, Check::Number},
    {5, Check::Number},
    {7, Check::Number},
};
constexpr Frame disabilityInsuranceFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Disability Insurance Information"_L1, {1, 13}, {}},
    {2, "Comment/Documents Location"_L1, {14, 14}, {}},
};
constexpr ScreenDefinition disabilityInsurance{
    .name = "frmDisabilityInsurance"_L1,
    .table = "DisabilityInsurance"_L1,
    .recordset = "adoDisabilityInsuranceRS"_L1,
    .title = "Disability Insurance Information Of -- "_L1,
    .attachmentPrefix = "Din_"_L1,
    .addCaption = "&Add New Disability Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "disability insurance information can be created."_L1,
    .deleteNoun = "disability insurance information?"_L1,
    .checks = disabilityInsuranceChecks,
    .rateBox = 3,
    .frames = disabilityInsuranceFrames,
};

constexpr FieldCheck umbrellaInsuranceChecks[] = {
    {3, Check::Number},
    {5, Check::Number},
};
constexpr Frame umbrellaInsuranceFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Umbrella Insurance Information"_L1, {1, 10}, {}},
    {2, "Comment/Documents Location"_L1, {11, 11}, {}},
};
constexpr ScreenDefinition umbrellaInsurance{
    .name = "frmUmbrellaInsurance"_L1,
    .table = "UmbrellaInsurance"_L1,
    .recordset = "adoUmbrellaInsuranceRS"_L1,
    .title = "Umbrella Insurance Information Of -- "_L1,
    .attachmentPrefix = "Uin_"_L1,
    .addCaption = "&Add New Umbrella Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "umbrella insurance information can be created."_L1,
    .deleteNoun = "umbrella insurance information?"_L1,
    .checks = umbrellaInsuranceChecks,
    .frames = umbrellaInsuranceFrames,
};

constexpr DateColumn lifeInsuranceDates[] = {{8, "ExpirationDate"_L1}};
constexpr FieldCheck lifeInsuranceChecks[] = {
    {5, Check::Number},
    {6, Check::Number},
    {7, Check::Number},
    {8, Check::Date},
    {10, Check::Number},
};
constexpr Frame lifeInsuranceFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Life Insurance Information"_L1, {1, 14}, {}},
    {2, "Comment/Documents Location/Contingent Beneficiary"_L1, {15, 15}, {}},
};
constexpr ScreenDefinition lifeInsurance{
    .name = "frmLifeInsurance"_L1,
    .table = "LifeInsurance"_L1,
    .recordset = "adoLifeInsuranceRS"_L1,
    .title = "Life Insurance Information Of -- "_L1,
    .attachmentPrefix = "Lin_"_L1,
    .addCaption = "&Add New Life Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "life insurance information can be created."_L1,
    .deleteNoun = "life insurance information?"_L1,
    .dates = lifeInsuranceDates,
    .checks = lifeInsuranceChecks,
    .frames = lifeInsuranceFrames,
};

constexpr FieldCheck medicalInsuranceChecks[] = {
    {3, Check::Number},
    {5, Check::Number},
    {6, Check::Number},
    {8, Check::Number},
};
constexpr Frame medicalInsuranceFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Medical Insurance Information"_L1, {1, 12}, {0, 0}},
    {2, "Comment/Documents Location"_L1, {13, 13}, {}},
};
constexpr ScreenDefinition medicalInsurance{
    .name = "frmMedicalInsurance"_L1,
    .table = "MedicalInsurance"_L1,
    .recordset = "adoMedicalInsuranceRS"_L1,
    .title = "Medical Insurance Information Of -- "_L1,
    .attachmentPrefix = "Min_"_L1,
    .addCaption = "&Add New Medical Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "medical insurance information can be created."_L1,
    .deleteNoun = "medical insurance information?"_L1,
    .checks = medicalInsuranceChecks,
    .frames = medicalInsuranceFrames,
};

constexpr DateColumn otherInsuranceDates[] = {{9, "ExpirationDate"_L1}};
constexpr FieldCheck otherInsuranceChecks[] = {
    {5, Check::Number},
    {6, Check::Number},
    {8, Check::Number},
    {9, Check::Date},
};
constexpr Frame otherInsuranceFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Other Insurance Information"_L1, {1, 13}, {0, 0}},
    {2, "Comment/Documents Location"_L1, {14, 14}, {}},
};
constexpr ScreenDefinition otherInsurance{
    .name = "frmOtherInsurance"_L1,
    .table = "OtherInsurance"_L1,
    .recordset = "adoOtherInsuranceRS"_L1,
    .title = "Other Insurance Information Of -- "_L1,
    .attachmentPrefix = "Oin_"_L1,
    .addCaption = "&Add New Other Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "other insurance information can be created."_L1,
    .deleteNoun = "other insurance information?"_L1,
    .dates = otherInsuranceDates,
    .checks = otherInsuranceChecks,
    .frames = otherInsuranceFrames,
};

constexpr ScreenDefinition entries[] = {
    homeInsurance,
    autoInsurance,
    supplementalInsurance,
    disabilityInsurance,
    umbrellaInsurance,
    lifeInsurance,
    medicalInsurance,
    otherInsurance,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> insuranceEntries() {
    return entries;
}

}  // namespace screens
