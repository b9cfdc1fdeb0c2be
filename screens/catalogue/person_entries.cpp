#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr Frame educationFrames[] = {
    {"Family Member"_L1},
    {"Education Information"_L1, "School"_L1},
    {"Diploma Location"_L1, "DiplomaLoc"_L1},
    {"Comment"_L1, "Comment"_L1},
};
constexpr ScreenDefinition education{
    .name = "frmEducation"_L1,
    .table = "Education"_L1,
    .title = "Education Information Of -- "_L1,
    .attachmentPrefix = "Edu_"_L1,
    .addCaption = "&Add New Education Info"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "education information can be created."_L1,
    .deleteNoun = "education information?"_L1,
    .reportsLoadFailure = true,
    .frames = educationFrames,
};

constexpr Frame employmentFrames[] = {
    {"Family Member"_L1},
    {"Employment Information"_L1, "Employer"_L1, "Current"_L1},
    {"Comment"_L1, "Comment"_L1},
};
constexpr ScreenDefinition employment{
    .name = "frmEmployment"_L1,
    .table = "Employers"_L1,
    .title = "Employment Information Of -- "_L1,
    .attachmentPrefix = "Emp_"_L1,
    .addCaption = "&Add New Employment"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "employment information can be created."_L1,
    .deleteNoun = "employment information?"_L1,
    .frames = employmentFrames,
};

// Citizenship has the lower numbers, so its frame comes first and takes the owner.
constexpr Frame passportFrames[] = {
    {"Citizenship Information"_L1, "Citizenship"_L1, "Native"_L1, 1},
    {"Passport Information"_L1, "PassportIDNumber"_L1, "Passport"_L1, 0},
    {"Comment"_L1, "CitizenshipComment"_L1},
};
constexpr ScreenDefinition passport{
    .name = "frmPassport"_L1,
    .table = "Passports"_L1,
    .title = "Citizenship and Passport Information Of -- "_L1,
    .attachmentPrefix = "Pas_"_L1,
    .addCaption = "&Add New Passport/Citizenship Info"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "citizenship and passport information can be created."_L1,
    .deleteNoun = "citizenship and passport information?"_L1,
    .reportsLoadFailure = true,
    .frames = passportFrames,
};

constexpr Frame residencesFrames[] = {
    {"Owner Information"_L1},
    {"Address Information"_L1, "AddrLine"_L1, "PrimaryResidence"_L1},
    {"Owner Telephone Information"_L1, "CellPhone"_L1},
    {"Comment"_L1, "Comment"_L1},
};
constexpr ScreenDefinition residences{
    .name = "frmResidences"_L1,
    .table = "Residences"_L1,
    .title = "Residence Of -- "_L1,
    .attachmentPrefix = "Res_"_L1,
    .addCaption = "&Add New Residence"_L1,
    .ownerLabel = "Owner:"_L1,
    .refusal = noLegalOwner,
    .saveEnding = "residence can be created."_L1,
    .deleteNoun = "residence?"_L1,
    .reportsLoadFailure = true,
    .frames = residencesFrames,
};

constexpr Frame militaryFrames[] = {
    {"Family Member"_L1},
    {"Military Service Information"_L1, "MilitaryBranch"_L1},
    {"Discharge Documents Location"_L1, "DischargeDocLoc"_L1},
    {"Comment and Veterans Benefits Information"_L1, "CommentVetBenefits"_L1},
};
constexpr ScreenDefinition military{
    .name = "frmMilitary"_L1,
    .table = "MilitaryService"_L1,
    .title = "Military Service Information Of -- "_L1,
    .attachmentPrefix = "Mil_"_L1,
    .addCaption = "&Add New Military Info"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "military service information can be created."_L1,
    .deleteNoun = "military service information?"_L1,
    .reportsLoadFailure = true,
    .frames = militaryFrames,
};

constexpr Frame religionFrames[] = {
    {"Religious Information"_L1, "ReligiousPreference"_L1},
    {"Comment"_L1, "ReligiousComment"_L1},
};
constexpr ScreenDefinition religion{
    .name = "frmReligion"_L1,
    .table = "ReligiousPreference"_L1,
    .title = "Religious Preferences Of -- "_L1,
    .attachmentPrefix = "Rel_"_L1,
    .addCaption = "&Add New Religious Info"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "religious preference information can be created."_L1,
    .deleteNoun = "religious preference information?"_L1,
    .reportsLoadFailure = true,
    .frames = religionFrames,
};

constexpr ScreenDefinition personGroup[] = {
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
    return personGroup;
}

}  // namespace screens
