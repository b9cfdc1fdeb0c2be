#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

// The mortuary has the lower numbers, so its frame comes first and takes the owner.
constexpr Frame funeralFrames[] = {
    {"Mortuary Information"_L1, "Mortuary"_L1, "BurialInsurance"_L1, 1},
    {"Cemetery Information"_L1, "Cemetery"_L1, "LongTermCare"_L1, 0},
    {"Comment, Obituary Information, Headstone Inscription"_L1, "Comment"_L1},
};
constexpr ScreenDefinition funeral{
    .name = "frmFuneral"_L1,
    .table = "Funeral"_L1,
    .title = "Funeral Information Of -- "_L1,
    .attachmentPrefix = "Fun_"_L1,
    .addCaption = "&Add New Funeral Info"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "funeral information can be created."_L1,
    .deleteNoun = "funeral information?"_L1,
    .frames = funeralFrames,
};

constexpr QLatin1StringView marriageStatusItems[] = {
    "--"_L1,
    "Married"_L1,
    "Divorced"_L1,
    "Spouse Deceased"_L1,
};
constexpr Frame marriageFrames[] = {
    {"Family Member Information"_L1},
    {"Marriage Information"_L1, "MarriedTo"_L1},
    {"Comment"_L1, "Comment"_L1},
};
constexpr ScreenDefinition marriage{
    .name = "frmMarriage"_L1,
    .table = "Marriage"_L1,
    .title = "Marriage Information for -- "_L1,
    .attachmentPrefix = "Mar_"_L1,
    .addCaption = "&Add New Marriage Info"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "marriage can be created."_L1,
    .deleteNoun = "marriage?"_L1,
    .reportsLoadFailure = true,
    .statusItems = marriageStatusItems,
    .frames = marriageFrames,
};

// The frame of trust and will was numbered last and is read second.
constexpr Frame legalFrames[] = {
    {"Legal Information"_L1},
    {"Trust/Will Information"_L1, "TrustDate"_L1, "AnyTrusts"_L1, 4},
    {"Power of Attorney Information"_L1, "PattName"_L1, "PowerOfAttorney"_L1, 1},
    {"Lawsuit Information"_L1, {}, "Sued"_L1, 2},
    {"Comment/Will and Trust Attorneys"_L1, "Comment"_L1, {}, 3},
};
constexpr ScreenDefinition legal{
    .name = "frmLegal"_L1,
    .table = "LegalInfo"_L1,
    .title = "Legal Information Of -- "_L1,
    .attachmentPrefix = "Lgl_"_L1,
    .addCaption = "&Add New Legal Info"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "legal information can be created."_L1,
    .deleteNoun = "legal information?"_L1,
    .reportsLoadFailure = true,
    .frames = legalFrames,
};

// The father has the lower numbers, so his frame comes first and takes the owner.
constexpr Frame parentsFrames[] = {
    {"Father's Information"_L1, "FatherName"_L1, "FatherAlive"_L1, 1},
    {"Mother's Information"_L1, "MotherName"_L1, "MotherAlive"_L1, 0},
    {"Comment"_L1, "ParentComment"_L1},
};
constexpr ScreenDefinition parents{
    .name = "frmParents"_L1,
    .table = "Parents"_L1,
    .title = "Parents Of -- "_L1,
    .attachmentPrefix = "Prn_"_L1,
    .addCaption = "&Add New Parents"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "parents can be created."_L1,
    .deleteNoun = "set of parents?"_L1,
    .reportsLoadFailure = true,
    .frames = parentsFrames,
};

constexpr Frame safetyDepositFrames[] = {
    {"Family Member"_L1},
    {"Safe Deposit Box Information"_L1, "Institution"_L1},
    {"Comment/Contents of Box"_L1, "Comment"_L1},
};
constexpr ScreenDefinition safetyDeposit{
    .name = "frmSafetyDeposit"_L1,
    .table = "SafetyDeposit"_L1,
    .title = "Safe Deposit Box Information Of -- "_L1,
    .attachmentPrefix = "Sdb_"_L1,
    .addCaption = "&Add New Safe Deposit Box"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "safe deposit box information can be created."_L1,
    .deleteNoun = "safe deposit box information?"_L1,
    .frames = safetyDepositFrames,
};

constexpr Frame organizationsFrames[] = {
    {"Family Member"_L1},
    {"Organization Information"_L1, "Organization"_L1, "Professional"_L1},
    {"Comment"_L1, "Comment"_L1},
};
constexpr ScreenDefinition organizations{
    .name = "frmOrganizations"_L1,
    .table = "Organizations"_L1,
    .title = "Organization Information Of -- "_L1,
    .attachmentPrefix = "Org_"_L1,
    .addCaption = "&Add New Organization"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "organization information can be created."_L1,
    .deleteNoun = "organization information?"_L1,
    .frames = organizationsFrames,
};

constexpr Frame membershipsFrames[] = {
    {"Family Member"_L1},
    {"Membership Information"_L1, "OrgName"_L1},
    {"Comment"_L1, "Comment"_L1},
};
constexpr ScreenDefinition memberships{
    .name = "frmMemberships"_L1,
    .table = "Memberships"_L1,
    .title = "Membership Information Of -- "_L1,
    .attachmentPrefix = "Mbr_"_L1,
    .addCaption = "&Add New Membership"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "membership information can be created."_L1,
    .deleteNoun = "membership information?"_L1,
    .frames = membershipsFrames,
};

constexpr ScreenDefinition familyGroup[] = {
    funeral,
    marriage,
    legal,
    parents,
    safetyDeposit,
    organizations,
    memberships,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> familyEntries() {
    return familyGroup;
}

}  // namespace screens
