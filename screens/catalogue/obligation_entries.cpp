#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr QLatin1StringView loansLeftOut[] = {"PMI"_L1};
constexpr ComboColumn loansCombos[] = {{1, "State"_L1, 5}};
constexpr DateColumn loansDates[] = {{15, "OriginationDate"_L1}};
constexpr FieldCheck loansChecks[] = {
    {8, Check::Number},
    {10, Check::Number},
    {11, Check::Number},
    {15, Check::Date},
};
constexpr Frame loansFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Loan Information"_L1, {1, 15}, {}},
    {2, "Comment/Collateral/Other Terms"_L1, {16, 16}, {}},
};
constexpr ScreenDefinition loans{
    .name = "frmLoans"_L1,
    .table = "Obligations"_L1,
    .recordset = "adoObligationsRS"_L1,
    .title = " Obligation Of -- "_L1,
    .attachmentPrefix = "Obl_"_L1,
    .addCaption = "&Add New Loan"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "obligation information can be created."_L1,
    .deleteNoun = "loan information?"_L1,
    .shared = SharedRows{.type = 3, .word = "Loan"_L1, .filters = true},
    .leftOut = loansLeftOut,
    .combos = loansCombos,
    .dates = loansDates,
    .checks = loansChecks,
    .rateBox = 10,
    .frames = loansFrames,
};

constexpr Override mortgagesOverrides[] = {
    {.column = "Name"_L1, .label = "Mortgage Holder:"_L1},
    {.column = "InterestRateType"_L1, .maxLength = 50, .hint = "Variable, Fixed, No Interest Rate"_L1},
    {.column = "Length"_L1, .maxLength = 50},
};
constexpr ComboColumn mortgagesCombos[] = {{1, "State"_L1, 5}};
constexpr DateColumn mortgagesDates[] = {{15, "OriginationDate"_L1}};
constexpr FieldCheck mortgagesChecks[] = {
    {8, Check::Number},
    {10, Check::Number},
    {11, Check::Number},
    {15, Check::Date},
};
constexpr Frame mortgagesFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Mortgage Information"_L1, {1, 15}, {0, 0}},
    {2, "Comment/Collateral/Other Terms"_L1, {16, 16}, {}},
};
constexpr ScreenDefinition mortgages{
    .name = "frmMortgages"_L1,
    .table = "Obligations"_L1,
    .recordset = "adoObligationsRS"_L1,
    .caption = "Mortgages"_L1,
    .title = " Obligation Of -- "_L1,
    .attachmentPrefix = "Obl_"_L1,
    .addCaption = "&Add New Mortgage"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "obligation information can be created."_L1,
    .deleteNoun = "mortgage information?"_L1,
    .shared = SharedRows{.type = 4, .word = "Mortgage"_L1, .filters = true},
    .overrides = mortgagesOverrides,
    .combos = mortgagesCombos,
    .dates = mortgagesDates,
    .checks = mortgagesChecks,
    .rateBox = 10,
    .frames = mortgagesFrames,
};

constexpr ComboColumn childSupportCombos[] = {{1, "State"_L1, 5}};
constexpr FieldCheck childSupportChecks[] = {{9, Check::Number}};
constexpr Frame childSupportFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Child Support Information"_L1, {1, 10}, {}},
    {2, "Comment/Location of Court Orders"_L1, {11, 11}, {}},
};
constexpr ScreenDefinition childSupport{
    .name = "frmChildSupport"_L1,
    .table = "AlimonyChildSupport"_L1,
    .recordset = "adoChildSupportRS"_L1,
    .caption = "Child Support"_L1,
    .title = " Obligation Of -- "_L1,
    .attachmentPrefix = "Ali_"_L1,
    .addCaption = "&Add New Child Support"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "child support obligation information can be created."_L1,
    .deleteNoun = "child support obligation information?"_L1,
    .shared = SharedRows{.type = 2, .word = "Child Support"_L1, .filters = false},
    .combos = childSupportCombos,
    .checks = childSupportChecks,
    .frames = childSupportFrames,
};

// Shows the rows of child support too: only the saved type tells them apart.
constexpr ComboColumn alimonyCombos[] = {{1, "State"_L1, 5}};
constexpr FieldCheck alimonyChecks[] = {{9, Check::Number}};
constexpr Frame alimonyFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Alimony Information"_L1, {1, 10}, {}},
    {2, "Comment/Location of Court Orders"_L1, {11, 11}, {}},
};
constexpr ScreenDefinition alimony{
    .name = "frmAlimony"_L1,
    .table = "AlimonyChildSupport"_L1,
    .recordset = "adoAlimonyRS"_L1,
    .title = " Obligation Of -- "_L1,
    .attachmentPrefix = "Ali_"_L1,
    .addCaption = "&Add New Alimony"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "alimony obligation information can be created."_L1,
    .deleteNoun = "alimony obligation information?"_L1,
    .shared = SharedRows{.type = 1, .word = "Alimony"_L1, .filters = false},
    .combos = alimonyCombos,
    .checks = alimonyChecks,
    .frames = alimonyFrames,
};

constexpr ComboColumn creditCardsCombos[] = {{1, "State"_L1, 11}};
constexpr FieldCheck creditCardsChecks[] = {
    {3, Check::Number},
    {5, Check::Number},
};
constexpr Frame creditCardsFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Credit Card Information"_L1, {1, 12}, {0, 0}},
    {2, "Comment/Additional Names"_L1, {13, 13}, {}},
};
constexpr ScreenDefinition creditCards{
    .name = "frmCreditCards"_L1,
    .table = "CreditCards"_L1,
    .recordset = "adoCreditCardsRS"_L1,
    .title = "Credit Card Information Of -- "_L1,
    .attachmentPrefix = "CCd_"_L1,
    .addCaption = "&Add New Credit Card"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "credit card information can be created."_L1,
    .deleteNoun = "credit card information?"_L1,
    .combos = creditCardsCombos,
    .checks = creditCardsChecks,
    .rateBox = 5,
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
constexpr ComboColumn theyOweYouCombos[] = {{1, "State"_L1, 5}};
constexpr DateColumn theyOweYouDates[] = {{14, "OriginationDate"_L1}};
constexpr FieldCheck theyOweYouChecks[] = {
    {8, Check::Number},
    {10, Check::Number},
    {11, Check::Number},
    {14, Check::Date},
};
constexpr Frame theyOweYouFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "They Owe You Obligation Information"_L1, {1, 14}, {}},
    {2, "Comment/Collateral/Other Terms"_L1, {15, 15}, {}},
};
constexpr ScreenDefinition theyOweYou{
    .name = "frmTheyOweYou"_L1,
    .table = "Obligations"_L1,
    .recordset = "adoObligationsRS"_L1,
    .caption = "TheyOweYou"_L1,
    .title = " Obligation Of -- "_L1,
    .attachmentPrefix = "Obl_"_L1,
    .addCaption = "&Add New TheyOweYou"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "obligation information can be created."_L1,
    .deleteNoun = "they owe you ogligation information?"_L1,
    .shared = SharedRows{.type = 2, .word = "They Owe You"_L1, .filters = true},
    .overrides = theyOweYouOverrides,
    .leftOut = theyOweYouLeftOut,
    .combos = theyOweYouCombos,
    .dates = theyOweYouDates,
    .checks = theyOweYouChecks,
    .rateBox = 10,
    .frames = theyOweYouFrames,
};

constexpr ScreenDefinition entries[] = {
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
    return entries;
}

}  // namespace screens
