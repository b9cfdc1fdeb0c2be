#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr Frame moneyMarketsFrames[] = {
    {"Family Member"_L1},
    {"Money Market Information"_L1, "BankName"_L1},
    {"Additional Names on Money Market"_L1, "AdditionalNames"_L1},
    {"Comment/Statement Locations"_L1, "Comment"_L1},
};
constexpr ScreenDefinition moneyMarkets{
    .name = "frmMoneyMarkets"_L1,
    .table = "MoneyMarkets"_L1,
    .title = "Money Markets Information Of -- "_L1,
    .attachmentPrefix = "Mmk_"_L1,
    .addCaption = "&Add New Money Market"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "money market information can be created."_L1,
    .deleteNoun = "money market information?"_L1,
    .frames = moneyMarketsFrames,
};

constexpr Frame savingsAcctFrames[] = {
    {"Family Member"_L1},
    {"Savings Account Information"_L1, "BankName"_L1, "OverdraftGuarantee"_L1},
    {"Additional Names on Savings Account"_L1, "AdditionalNames"_L1},
    {"Comment/Passbook Location/Fee Information"_L1, "Comment"_L1},
};
constexpr ScreenDefinition savingsAcct{
    .name = "frmSavingsAcct"_L1,
    .table = "SavingsAccounts"_L1,
    .title = "Savings Account Information Of -- "_L1,
    .attachmentPrefix = "Sav_"_L1,
    .addCaption = "&Add New Savings Acct"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "savings account information can be created."_L1,
    .deleteNoun = "savings account information?"_L1,
    .frames = savingsAcctFrames,
};

constexpr Frame checkingAcctFrames[] = {
    {"Family Member"_L1},
    {"Checking Account Information"_L1, "BankName"_L1, "Overdraft Guarantee"_L1},
    {"Additional Names on Checking Account"_L1, "AdditionalNames"_L1},
    {"Comment/Statement Locations/Fee Information"_L1, "Comment"_L1},
};
constexpr ScreenDefinition checkingAcct{
    .name = "frmCheckingAcct"_L1,
    .table = "CheckingAccounts"_L1,
    .title = "Checking Account Information Of -- "_L1,
    .attachmentPrefix = "Chk_"_L1,
    .addCaption = "&Add New Checking Acct"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "checking account information can be created."_L1,
    .deleteNoun = "checking account information?"_L1,
    .frames = checkingAcctFrames,
};

constexpr Frame cdsFrames[] = {
    {"Family Member"_L1},
    {"CD Information"_L1, "BankName"_L1},
    {"Comment/Additional Names on CD/CD Location"_L1, "AdditionalNames"_L1},
    {"Comment/Passbook Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition cds{
    .name = "frmCDs"_L1,
    .table = "CDs"_L1,
    .title = "CD Account Information Of -- "_L1,
    .attachmentPrefix = "CDS_"_L1,
    .addCaption = "&Add New CD"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "CD account information can be created."_L1,
    .deleteNoun = "CD account information?"_L1,
    .frames = cdsFrames,
};

constexpr ScreenDefinition bankingGroup[] = {
    moneyMarkets,
    savingsAcct,
    checkingAcct,
    cds,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> bankingEntries() {
    return bankingGroup;
}

}  // namespace screens
