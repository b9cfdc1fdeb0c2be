#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr Frame socialSecurityFrames[] = {
    {"Family Member"_L1},
    {"Social Security Information"_L1, "MonthlyBenefit"_L1, "Collecting"_L1},
    {"Comment"_L1, "Comment"_L1},
};
constexpr ScreenDefinition socialSecurity{
    .name = "frmSocialSecurity"_L1,
    .table = "SocialSecurity"_L1,
    .title = "Social Security Information Of -- "_L1,
    .attachmentPrefix = "Ssn_"_L1,
    .addCaption = "&Add New Social Security Info"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "social security information can be created."_L1,
    .deleteNoun = "social security information?"_L1,
    .frames = socialSecurityFrames,
};

// The ending names another subject than the screen's, and is meant to.
constexpr Frame retirementAccountsFrames[] = {
    {"Family Member"_L1},
    {"Retirement Accounts Information"_L1, "Payor"_L1, "Mortgaged"_L1},
    {"Comment/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition retirementAccounts{
    .name = "frmRetirementAccounts"_L1,
    .table = "RetirementAccounts"_L1,
    .title = "Retirement Accounts Information Of -- "_L1,
    .attachmentPrefix = "Rta_"_L1,
    .addCaption = "&Add New Retirement Acct"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "mutual funds information can be created."_L1,
    .deleteNoun = "retirement accounts information?"_L1,
    .frames = retirementAccountsFrames,
};

constexpr Frame taxesFrames[] = {
    {"Family Member"_L1},
    {"Tax Information"_L1, "Company"_L1, "OutstandingTaxes"_L1},
    {"Comment/Deductions/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition taxes{
    .name = "frmTaxes"_L1,
    .table = "Taxes"_L1,
    .title = "Tax Information Of -- "_L1,
    .attachmentPrefix = "Tax_"_L1,
    .addCaption = "&Add New Tax Information"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "tax information can be created."_L1,
    .deleteNoun = "tax information?"_L1,
    .frames = taxesFrames,
};

constexpr ScreenDefinition retirementGroup[] = {
    socialSecurity,
    retirementAccounts,
    taxes,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> retirementEntries() {
    return retirementGroup;
}

}  // namespace screens
