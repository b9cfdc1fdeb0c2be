#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr ComboColumn moneyMarketsCombos[] = {{1, "State"_L1, 5}};
constexpr FieldCheck moneyMarketsChecks[] = {{11, Check::Number}};
constexpr Frame moneyMarketsFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Money Market Information"_L1, {1, 11}, {}},
    {2, "Additional Names on Money Market"_L1, {12, 12}, {}},
    {3, "Comment/Statement Locations"_L1, {13, 13}, {}},
};
constexpr ScreenDefinition moneyMarkets{
    .name = "frmMoneyMarkets"_L1,
    .table = "MoneyMarkets"_L1,
    .recordset = "adoMoneyMarketsRS"_L1,
    .title = "Money Markets Information Of -- "_L1,
    .attachmentPrefix = "Mmk_"_L1,
    .addCaption = "&Add New Money Market"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "money market information can be created."_L1,
    .deleteNoun = "money market information?"_L1,
    .combos = moneyMarketsCombos,
    .checks = moneyMarketsChecks,
    .frames = moneyMarketsFrames,
};

constexpr ComboColumn savingsAcctCombos[] = {{1, "State"_L1, 5}};
constexpr FieldCheck savingsAcctChecks[] = {
    {11, Check::Number},
    {12, Check::Number},
};
constexpr Frame savingsAcctFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Savings Account Information"_L1, {1, 12}, {0, 0}},
    {2, "Additional Names on Savings Account"_L1, {13, 13}, {}},
    {3, "Comment/Passbook Location/Fee Information"_L1, {14, 14}, {}},
};
constexpr ScreenDefinition savingsAcct{
    .name = "frmSavingsAcct"_L1,
    .table = "SavingsAccounts"_L1,
    .recordset = "adoSavingsAcctsRS"_L1,
    .title = "Savings Account Information Of -- "_L1,
    .attachmentPrefix = "Sav_"_L1,
    .addCaption = "&Add New Savings Acct"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "savings account information can be created."_L1,
    .deleteNoun = "savings account information?"_L1,
    .combos = savingsAcctCombos,
    .checks = savingsAcctChecks,
    .rateBox = 11,
    .frames = savingsAcctFrames,
};

constexpr ComboColumn checkingAcctCombos[] = {{1, "State"_L1, 5}};
constexpr FieldCheck checkingAcctChecks[] = {{11, Check::Number}};
constexpr Frame checkingAcctFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Checking Account Information"_L1, {1, 11}, {0, 0}},
    {2, "Additional Names on Checking Account"_L1, {12, 12}, {}},
    {3, "Comment/Statement Locations/Fee Information"_L1, {13, 13}, {}},
};
constexpr ScreenDefinition checkingAcct{
    .name = "frmCheckingAcct"_L1,
    .table = "CheckingAccounts"_L1,
    .recordset = "adoCheckingAcctsRS"_L1,
    .title = "Checking Account Information Of -- "_L1,
    .attachmentPrefix = "Chk_"_L1,
    .addCaption = "&Add New Checking Acct"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "checking account information can be created."_L1,
    .deleteNoun = "checking account information?"_L1,
    .combos = checkingAcctCombos,
    .checks = checkingAcctChecks,
    .frames = checkingAcctFrames,
};

constexpr ComboColumn cdsCombos[] = {{1, "State"_L1, 5}};
constexpr DateColumn cdsDates[] = {{12, "MaturityDate"_L1}};
constexpr FieldCheck cdsChecks[] = {
    {11, Check::Number},
    {12, Check::Date},
};
constexpr Frame cdsFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "CD Information"_L1, {1, 12}, {}},
    {2, "Comment/Additional Names on CD/CD Location"_L1, {13, 13}, {}},
    {3, "Comment/Passbook Location"_L1, {14, 14}, {}},
};
constexpr ScreenDefinition cds{
    .name = "frmCDs"_L1,
    .table = "CDs"_L1,
    .recordset = "adoCDRS"_L1,
    .title = "CD Account Information Of -- "_L1,
    .attachmentPrefix = "CDS_"_L1,
    .addCaption = "&Add New CD"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "CD account information can be created."_L1,
    .deleteNoun = "CD account information?"_L1,
    .combos = cdsCombos,
    .dates = cdsDates,
    .checks = cdsChecks,
    .frames = cdsFrames,
};

constexpr ScreenDefinition entries[] = {
    moneyMarkets,
    savingsAcct,
    checkingAcct,
    cds,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> bankingEntries() {
    return entries;
}

}  // namespace screens
