#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr QLatin1StringView loansLeftOut[] = {"PMI"_L1};
constexpr Frame loansFrames[] = {
    {"Family Member"_L1},
    {"Loan Information"_L1, "Name"_L1},
    {"Comment/Collateral/Other Terms"_L1, "Comment"_L1},
};
constexpr ScreenDefinition loans{
    .name = "frmLoans"_L1,
    .table = "Obligations"_L1,
    .title = " Obligation Of -- "_L1,
    .attachmentPrefix = "Obl_"_L1,
    .addCaption = "&Add New Loan"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "obligation information can be created."_L1,
    .deleteNoun = "loan information?"_L1,
    .shared = SharedRows{.type = 3, .word = "Loan"_L1, .filters = true},
    .leftOut = loansLeftOut,
    .frames = loansFrames,
};

constexpr Override mortgagesOverrides[] = {
    {.column = "Name"_L1, .label = "Mortgage Holder:"_L1},
    {.column = "InterestRateType"_L1, .maxLength = 50, .hint = "Variable, Fixed, No Interest Rate"_L1},
    {.column = "Length"_L1, .maxLength = 50},
};
constexpr Frame mortgagesFrames[] = {
    {"Family Member"_L1},
    {"Mortgage Information"_L1, "Name"_L1, "PMI"_L1},
    {"Comment/Collateral/Other Terms"_L1, "Comment"_L1},
};
constexpr ScreenDefinition mortgages{
    .name = "frmMortgages"_L1,
    .table = "Obligations"_L1,
    .title = " Obligation Of -- "_L1,
    .attachmentPrefix = "Obl_"_L1,
    .addCaption = "&Add New Mortgage"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "obligation information can be created."_L1,
    .deleteNoun = "mortgage information?"_L1,
    .shared = SharedRows{.type = 4, .word = "Mortgage"_L1, .filters = true},
    .overrides = mortgagesOverrides,
    .frames = mortgagesFrames,
};

constexpr Frame childSupportFrames[] = {
    {"Family Member"_L1},
    {"Child Support Information"_L1, "Name"_L1},
    {"Comment/Location of Court Orders"_L1, "Comment"_L1},
};
constexpr ScreenDefinition childSupport{
    .name = "frmChildSupport"_L1,
    .table = "AlimonyChildSupport"_L1,
    .title = " Obligation Of -- "_L1,
    .attachmentPrefix = "Ali_"_L1,
    .addCaption = "&Add New Child Support"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "child support obligation information can be created."_L1,
    .deleteNoun = "child support obligation information?"_L1,
    .shared = SharedRows{.type = 2, .word = "Child Support"_L1, .filters = false},
    .frames = childSupportFrames,
};

// Shows the rows of child support too: only the saved type tells them apart.
constexpr Frame alimonyFrames[] = {
    {"Family Member"_L1},
    {"Alimony Information"_L1, "Name"_L1},
    {"Comment/Location of Court Orders"_L1, "Comment"_L1},
};
constexpr ScreenDefinition alimony{
    .name = "frmAlimony"_L1,
    .table = "AlimonyChildSupport"_L1,
    .title = " Obligation Of -- "_L1,
    .attachmentPrefix = "Ali_"_L1,
    .addCaption = "&Add New Alimony"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "alimony obligation information can be created."_L1,
    .deleteNoun = "alimony obligation information?"_L1,
    .shared = SharedRows{.type = 1, .word = "Alimony"_L1, .filters = false},
    .frames = alimonyFrames,
};

constexpr Frame creditCardsFrames[] = {
    {"Family Member"_L1},
    {"Credit Card Information"_L1, "CardType"_L1, "Insurance"_L1},
    {"Comment/Additional Names"_L1, "Comment"_L1},
};
constexpr ScreenDefinition creditCards{
    .name = "frmCreditCards"_L1,
    .table = "CreditCards"_L1,
    .title = "Credit Card Information Of -- "_L1,
    .attachmentPrefix = "CCd_"_L1,
    .addCaption = "&Add New Credit Card"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "credit card information can be created."_L1,
    .deleteNoun = "credit card information?"_L1,
    .frames = creditCardsFrames,
};

constexpr Override theyOweYouOverrides[] = {
    {.column = "Name"_L1, .label = "Name:"_L1},
    {.column = "InterestRateType"_L1, .maxLength = 50},
    {.column = "Length"_L1, .maxLength = 50},
};
// The debtor keeps the number of the loan, not the family.
constexpr QLatin1StringView theyOweYouLeftOut[] = {
    "LoanNumber"_L1,
    "PMI"_L1,
};
constexpr Frame theyOweYouFrames[] = {
    {"Family Member"_L1},
    {"They Owe You Obligation Information"_L1, "Name"_L1},
    {"Comment/Collateral/Other Terms"_L1, "Comment"_L1},
};
constexpr ScreenDefinition theyOweYou{
    .name = "frmTheyOweYou"_L1,
    .table = "Obligations"_L1,
    .title = " Obligation Of -- "_L1,
    .attachmentPrefix = "Obl_"_L1,
    .addCaption = "&Add New TheyOweYou"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "obligation information can be created."_L1,
    .deleteNoun = "they owe you ogligation information?"_L1,
    .shared = SharedRows{.type = 2, .word = "They Owe You"_L1, .filters = true},
    .overrides = theyOweYouOverrides,
    .leftOut = theyOweYouLeftOut,
    .frames = theyOweYouFrames,
};

constexpr ScreenDefinition obligationGroup[] = {
    loans,
    mortgages,
    childSupport,
    alimony,
    creditCards,
    theyOweYou,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> obligationEntries() {
    return obligationGroup;
}

}  // namespace screens
