#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr ComboColumn funeralCombos[] = {
    {1, "MortState"_L1, 5},
    {2, "State"_L1, 12},
};
// The mortuary has the lower numbers, so its frame comes first and takes the owner.
constexpr Frame funeralFrames[] = {
    {1, "Mortuary Information"_L1, {0, 7}, {0, 1}},
    {0, "Cemetery Information"_L1, {8, 14}, {2, 2}},
    {2, "Comment, Obituary Information, Headstone Inscription"_L1, {15, 15}, {}},
};
constexpr ScreenDefinition funeral{
    .name = "frmFuneral"_L1,
    .table = "Funeral"_L1,
    .recordset = "adoFuneralRS"_L1,
    .title = "Funeral Information Of -- "_L1,
    .attachmentPrefix = "Fun_"_L1,
    .addCaption = "&Add New Funeral Info"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "funeral information can be created."_L1,
    .deleteNoun = "funeral information?"_L1,
    .combos = funeralCombos,
    .frames = funeralFrames,
};

constexpr ComboColumn marriageCombos[] = {
    {1, "Status"_L1, 4},
    {2, "State"_L1, 7},
};
constexpr QLatin1StringView marriageStatusItems[] = {
    "--"_L1,
    "Married"_L1,
    "Divorced"_L1,
    "Spouse Deceased"_L1,
};
constexpr DateColumn marriageDates[] = {
    {2, "Date"_L1},
    {8, "DeathDate"_L1},
    {9, "DivorceDate"_L1},
};
constexpr FieldCheck marriageChecks[] = {
    {2, Check::Date},
    {8, Check::Date},
    {9, Check::Date},
};
constexpr Frame marriageFrames[] = {
    {0, "Family Member Information"_L1, {0, 0}, {}},
    {1, "Marriage Information"_L1, {1, 12}, {}},
    {2, "Comment"_L1, {13, 13}, {}},
};
constexpr ScreenDefinition marriage{
    .name = "frmMarriage"_L1,
    .table = "Marriage"_L1,
    .recordset = "adoMarriageRS"_L1,
    .title = "Marriage Information for -- "_L1,
    .attachmentPrefix = "Mar_"_L1,
    .addCaption = "&Add New Marriage Info"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "marriage can be created."_L1,
    .deleteNoun = "marriage?"_L1,
    .reportsLoadFailure = true,
    .combos = marriageCombos,
    .statusItems = marriageStatusItems,
    .dates = marriageDates,
    .checks = marriageChecks,
    .frames = marriageFrames,
};

constexpr ComboColumn legalCombos[] = {{1, "PattState"_L1, 9}};
constexpr DateColumn legalDates[] = {
    {1, "TrustDate"_L1},
    {2, "WillLastChangedDate"_L1},
};
constexpr FieldCheck legalChecks[] = {
    {1, Check::Date},
    {2, Check::Date},
};
// The frame of trust and will was numbered last and is read second.
constexpr Frame legalFrames[] = {
    {0, "Legal Information"_L1, {0, 0}, {}},
    {4, "Trust/Will Information"_L1, {1, 4}, {0, 1}},
    {1, "Power of Attorney Information"_L1, {5, 10}, {2, 2}},
    {2, "Lawsuit Information"_L1, {}, {3, 6}},
    {3, "Comment/Will and Trust Attorneys"_L1, {11, 11}, {}},
};
constexpr ScreenDefinition legal{
    .name = "frmLegal"_L1,
    .table = "LegalInfo"_L1,
    .recordset = "adoLegalRS"_L1,
    .title = "Legal Information Of -- "_L1,
    .attachmentPrefix = "Lgl_"_L1,
    .addCaption = "&Add New Legal Info"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "legal information can be created."_L1,
    .deleteNoun = "legal information?"_L1,
    .reportsLoadFailure = true,
    .combos = legalCombos,
    .dates = legalDates,
    .checks = legalChecks,
    .frames = legalFrames,
};

constexpr ComboColumn parentsCombos[] = {
    {1, "FatherState"_L1, 4},
    {2, "MotherState"_L1, 13},
};
// The father has the lower numbers, so his frame comes first and takes the owner.
constexpr Frame parentsFrames[] = {
    {1, "Father's Information"_L1, {0, 9}, {0, 1}},
    {0, "Mother's Information"_L1, {10, 18}, {2, 2}},
    {2, "Comment"_L1, {19, 19}, {}},
};
constexpr ScreenDefinition parents{
    .name = "frmParents"_L1,
    .table = "Parents"_L1,
    .recordset = "adoParentRS"_L1,
    .title = "Parents Of -- "_L1,
    .attachmentPrefix = "Prn_"_L1,
    .addCaption = "&Add New Parents"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "parents can be created."_L1,
    .deleteNoun = "set of parents?"_L1,
    .reportsLoadFailure = true,
    .combos = parentsCombos,
    .frames = parentsFrames,
};

constexpr ComboColumn safetyDepositCombos[] = {{1, "State"_L1, 5}};
constexpr FieldCheck safetyDepositChecks[] = {{8, Check::Number}};
constexpr Frame safetyDepositFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Safe Deposit Box Information"_L1, {1, 12}, {}},
    {2, "Comment/Contents of Box"_L1, {13, 13}, {}},
};
constexpr ScreenDefinition safetyDeposit{
    .name = "frmSafetyDeposit"_L1,
    .table = "SafetyDeposit"_L1,
    .recordset = "adoSafetyDepositRS"_L1,
    .title = "Safe Deposit Box Information Of -- "_L1,
    .attachmentPrefix = "Sdb_"_L1,
    .addCaption = "&Add New Safe Deposit Box"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "safe deposit box information can be created."_L1,
    .deleteNoun = "safe deposit box information?"_L1,
    .combos = safetyDepositCombos,
    .checks = safetyDepositChecks,
    .frames = safetyDepositFrames,
};

constexpr ComboColumn organizationsCombos[] = {{1, "State"_L1, 5}};
constexpr FieldCheck organizationsChecks[] = {{9, Check::Number}};
constexpr Frame organizationsFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Organization Information"_L1, {1, 10}, {0, 12}},
    {2, "Comment"_L1, {11, 11}, {}},
};
constexpr ScreenDefinition organizations{
    .name = "frmOrganizations"_L1,
    .table = "Organizations"_L1,
    .recordset = "adoOrganizationsRS"_L1,
    .title = "Organization Information Of -- "_L1,
    .attachmentPrefix = "Org_"_L1,
    .addCaption = "&Add New Organization"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "organization information can be created."_L1,
    .deleteNoun = "organization information?"_L1,
    .combos = organizationsCombos,
    .checks = organizationsChecks,
    .frames = organizationsFrames,
};

constexpr ComboColumn membershipsCombos[] = {{1, "State"_L1, 7}};
constexpr DateColumn membershipsDates[] = {{13, "ExpirationDate"_L1}};
constexpr FieldCheck membershipsChecks[] = {
    {11, Check::Number},
    {13, Check::Date},
};
constexpr Frame membershipsFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Membership Information"_L1, {1, 13}, {}},
    {2, "Comment"_L1, {14, 14}, {}},
};
constexpr ScreenDefinition memberships{
    .name = "frmMemberships"_L1,
    .table = "Memberships"_L1,
    .recordset = "adoMembershipRS"_L1,
    .title = "Membership Information Of -- "_L1,
    .attachmentPrefix = "Mbr_"_L1,
    .addCaption = "&Add New Membership"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "membership information can be created."_L1,
    .deleteNoun = "membership information?"_L1,
    .combos = membershipsCombos,
    .dates = membershipsDates,
    .checks = membershipsChecks,
    .frames = membershipsFrames,
};

constexpr ScreenDefinition entries[] = {
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
    return entries;
}

}  // namespace screens
