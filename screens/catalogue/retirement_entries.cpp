#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr FieldCheck socialSecurityChecks[] = {{1, Check::Number}};
constexpr Frame socialSecurityFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Social Security Information"_L1, {1, 1}, {0, 4}},
    {2, "Comment"_L1, {2, 2}, {}},
};
constexpr ScreenDefinition socialSecurity{
    .name = "frmSocialSecurity"_L1,
    .table = "SocialSecurity"_L1,
    .recordset = "adoSocialSecurityRS"_L1,
    .title = "Social Security Information Of -- "_L1,
    .attachmentPrefix = "Ssn_"_L1,
    .addCaption = "&Add New Social Security Info"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "social security information can be created."_L1,
    .deleteNoun = "social security information?"_L1,
    .checks = socialSecurityChecks,
    .frames = socialSecurityFrames,
};

// The ending names another subject than the screen's, and is meant to.
constexpr ComboColumn retirementAccountsCombos[] = {{1, "State"_L1, 5}};
constexpr DateColumn retirementAccountsDates[] = {
    {12, "BalanceDate"_L1},
    {13, "WithdrawalStartDate"_L1},
};
constexpr FieldCheck retirementAccountsChecks[] = {
    {10, Check::Number},
    {11, Check::Number},
    {12, Check::Date},
    {13, Check::Date},
};
constexpr Frame retirementAccountsFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Retirement Accounts Information"_L1, {1, 13}, {0, 1}},
    {2, "Comment/Documents Location"_L1, {14, 14}, {}},
};
constexpr ScreenDefinition retirementAccounts{
    .name = "frmRetirementAccounts"_L1,
    .table = "RetirementAccounts"_L1,
    .recordset = "adoRetirementAccountsRS"_L1,
    .title = "Retirement Accounts Information Of -- "_L1,
    .attachmentPrefix = "Rta_"_L1,
    .addCaption = "&Add New Retirement Acct"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "mutual funds information can be created."_L1,
    .deleteNoun = "retirement accounts information?"_L1,
    .combos = retirementAccountsCombos,
    .dates = retirementAccountsDates,
    .checks = retirementAccountsChecks,
    .frames = retirementAccountsFrames,
};

constexpr ComboColumn taxesCombos[] = {{1, "State"_L1, 5}};
constexpr FieldCheck taxesChecks[] = {{9, Check::Number}};
constexpr Frame taxesFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Tax Information"_L1, {1, 11}, {0, 0}},
    {2, "Comment/Deductions/Documents Location"_L1, {12, 12}, {}},
};
constexpr ScreenDefinition taxes{
    .name = "frmTaxes"_L1,
    .table = "Taxes"_L1,
    .recordset = "adoTaxesRS"_L1,
    .title = "Tax Information Of -- "_L1,
    .attachmentPrefix = "Tax_"_L1,
    .addCaption = "&Add New Tax Information"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "tax information can be created."_L1,
    .deleteNoun = "tax information?"_L1,
    .combos = taxesCombos,
    .checks = taxesChecks,
    .frames = taxesFrames,
};

constexpr ScreenDefinition entries[] = {
    socialSecurity,
    retirementAccounts,
    taxes,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> retirementEntries() {
    return entries;
}

}  // namespace screens
