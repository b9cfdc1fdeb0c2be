#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr ComboColumn educationCombos[] = {{1, "State"_L1, 3}};
constexpr FieldCheck educationChecks[] = {
    {5, Check::Number},
    {6, Check::Number},
};
constexpr Frame educationFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Education Information"_L1, {1, 10}, {}},
    {2, "Diploma Location"_L1, {11, 11}, {}},
    {3, "Comment"_L1, {12, 12}, {}},
};
constexpr ScreenDefinition education{
    .name = "frmEducation"_L1,
    .table = "Education"_L1,
    .recordset = "adoEducationRS"_L1,
    .title = "Education Information Of -- "_L1,
    .attachmentPrefix = "Edu_"_L1,
    .addCaption = "&Add New Education Info"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "education information can be created."_L1,
    .deleteNoun = "education information?"_L1,
    .reportsLoadFailure = true,
    .combos = educationCombos,
    .checks = educationChecks,
    .frames = educationFrames,
};

constexpr ComboColumn employmentCombos[] = {{1, "WorkState"_L1, 5}};
constexpr DateColumn employmentDates[] = {
    {10, "HireDate"_L1},
    {11, "TerminationDate"_L1},
};
constexpr FieldCheck employmentChecks[] = {
    {8, Check::Number},
    {10, Check::Date},
    {11, Check::Date},
};
constexpr Frame employmentFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Employment Information"_L1, {1, 15}, {0, 9}},
    {2, "Comment"_L1, {16, 16}, {}},
};
constexpr ScreenDefinition employment{
    .name = "frmEmployment"_L1,
    .table = "Employers"_L1,
    .recordset = "adoEmployersRS"_L1,
    .title = "Employment Information Of -- "_L1,
    .attachmentPrefix = "Emp_"_L1,
    .addCaption = "&Add New Employment"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "employment information can be created."_L1,
    .deleteNoun = "employment information?"_L1,
    .combos = employmentCombos,
    .dates = employmentDates,
    .checks = employmentChecks,
    .frames = employmentFrames,
};

constexpr DateColumn passportDates[] = {
    {2, "ResAlienCardExpDate"_L1},
    {5, "DateIssued"_L1},
    {6, "DateExpired"_L1},
};
constexpr FieldCheck passportChecks[] = {
    {2, Check::Date},
    {5, Check::Date},
    {6, Check::Date},
};
// Citizenship has the lower numbers, so its frame comes first and takes the owner.
constexpr Frame passportFrames[] = {
    {1, "Citizenship Information"_L1, {0, 3}, {0, 1}},
    {0, "Passport Information"_L1, {4, 7}, {2, 2}},
    {2, "Comment"_L1, {8, 8}, {}},
};
constexpr ScreenDefinition passport{
    .name = "frmPassport"_L1,
    .table = "Passports"_L1,
    .recordset = "adoPassportsRS"_L1,
    .title = "Citizenship and Passport Information Of -- "_L1,
    .attachmentPrefix = "Pas_"_L1,
    .addCaption = "&Add New Passport/Citizenship Info"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "citizenship and passport information can be created."_L1,
    .deleteNoun = "citizenship and passport information?"_L1,
    .reportsLoadFailure = true,
    .dates = passportDates,
    .checks = passportChecks,
    .frames = passportFrames,
};

constexpr ComboColumn residencesCombos[] = {{1, "AddrState"_L1, 3}};
constexpr Frame residencesFrames[] = {
    {0, "Owner Information"_L1, {0, 0}, {}},
    {1, "Address Information"_L1, {1, 5}, {0, 0}},
    {2, "Owner Telephone Information"_L1, {6, 8}, {}},
    {3, "Comment"_L1, {9, 9}, {}},
};
constexpr ScreenDefinition residences{
    .name = "frmResidences"_L1,
    .table = "Residences"_L1,
    .recordset = "adoResRS"_L1,
    .title = "Residence Of -- "_L1,
    .attachmentPrefix = "Res_"_L1,
    .addCaption = "&Add New Residence"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "residence can be created."_L1,
    .deleteNoun = "residence?"_L1,
    .reportsLoadFailure = true,
    .combos = residencesCombos,
    .frames = residencesFrames,
};

constexpr Frame militaryFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Military Service Information"_L1, {1, 7}, {}},
    {2, "Discharge Documents Location"_L1, {8, 8}, {}},
    {3, "Comment and Veterans Benefits Information"_L1, {9, 9}, {}},
};
constexpr ScreenDefinition military{
    .name = "frmMilitary"_L1,
    .table = "MilitaryService"_L1,
    .recordset = "adoMilitaryRS"_L1,
    .title = "Military Service Information Of -- "_L1,
    .attachmentPrefix = "Mil_"_L1,
    .addCaption = "&Add New Military Info"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "military service information can be created."_L1,
    .deleteNoun = "military service information?"_L1,
    .reportsLoadFailure = true,
    .frames = militaryFrames,
};

constexpr ComboColumn religionCombos[] = {{1, "ChurchLeaderState"_L1, 6}};
constexpr Frame religionFrames[] = {
    {0, "Religious Information"_L1, {0, 9}, {}},
    {1, "Comment"_L1, {10, 10}, {}},
};
constexpr ScreenDefinition religion{
    .name = "frmReligion"_L1,
    .table = "ReligiousPreference"_L1,
    .recordset = "adoReligionRS"_L1,
    .title = "Religious Preferences Of -- "_L1,
    .attachmentPrefix = "Rel_"_L1,
    .addCaption = "&Add New Religious Info"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "religious preference information can be created."_L1,
    .deleteNoun = "religious preference information?"_L1,
    .reportsLoadFailure = true,
    .combos = religionCombos,
    .frames = religionFrames,
};

constexpr ScreenDefinition entries[] = {
    education,
    employment,
    passport,
    residences,
    military,
    religion,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> personEntries() {
    return entries;
}

}  // namespace screens
