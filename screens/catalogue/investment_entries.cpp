#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr Frame brokerageAcctFrames[] = {
    {"Family Member"_L1},
    {"Brokerage Account Information"_L1, "FirmName"_L1},
    {"Comment/Document Locations"_L1, "Comment"_L1},
};
constexpr ScreenDefinition brokerageAcct{
    .name = "frmBrokerageAcct"_L1,
    .table = "BrokerageAccount"_L1,
    .title = "Brokerage Account Information Of -- "_L1,
    .attachmentPrefix = "Brk_"_L1,
    .addCaption = "&Add New Brokerage Acct"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "brokerage account information can be created."_L1,
    .deleteNoun = "brokerage account information?"_L1,
    .frames = brokerageAcctFrames,
};

// The ending names another subject than the screen's, and is meant to.
constexpr Frame otherSecuritiesFrames[] = {
    {"Family Member"_L1},
    {"Investment Information"_L1, "SecurityType"_L1},
    {"Comment/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition otherSecurities{
    .name = "frmOtherSecurities"_L1,
    .table = "OtherSecurities"_L1,
    .title = "Other Securities Information Of -- "_L1,
    .attachmentPrefix = "Osc_"_L1,
    .addCaption = "&Add New Investment"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "treasury note information can be created."_L1,
    .deleteNoun = "other securities information?"_L1,
    .frames = otherSecuritiesFrames,
};

constexpr Frame annuityFrames[] = {
    {"Family Member"_L1},
    {"Annuity Information"_L1, "Payer"_L1, "Qualified"_L1},
    {"Comment/Documents Location/Qualification Type"_L1, "Comment"_L1},
};
constexpr ScreenDefinition annuity{
    .name = "frmAnnuity"_L1,
    .table = "Annuities"_L1,
    .title = "Annuities Information Of -- "_L1,
    .attachmentPrefix = "Ann_"_L1,
    .addCaption = "&Add New Annuity"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "annuity information can be created."_L1,
    .deleteNoun = "annuity information?"_L1,
    .frames = annuityFrames,
};

constexpr Frame stocksFrames[] = {
    {"Family Member"_L1},
    {"Stock Information"_L1, "Company"_L1, "Dividend"_L1},
    {"Comment/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition stocks{
    .name = "frmStocks"_L1,
    .table = "Stocks"_L1,
    .title = "Stocks Information Of -- "_L1,
    .attachmentPrefix = "Stk_"_L1,
    .addCaption = "&Add New Stock"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "stock information can be created."_L1,
    .deleteNoun = "stock information?"_L1,
    .frames = stocksFrames,
};

constexpr Frame savingsBondsFrames[] = {
    {"Family Member"_L1},
    {"Savings Bond Information"_L1, "Payer"_L1},
    {"Comment/Documents Location/Where Held"_L1, "Comment"_L1},
};
constexpr ScreenDefinition savingsBonds{
    .name = "frmSavingsBonds"_L1,
    .table = "SavingsBonds"_L1,
    .title = "Savings SavingsBonds Information Of -- "_L1,
    .attachmentPrefix = "Svb_"_L1,
    .addCaption = "&Add New Savings Bond"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "savings bond information can be created."_L1,
    .deleteNoun = "savings bond information?"_L1,
    .frames = savingsBondsFrames,
};

constexpr Frame mutualFundsFrames[] = {
    {"Family Member"_L1},
    {"Mutual Fund Information"_L1, "Company"_L1},
    {"Comment/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition mutualFunds{
    .name = "frmMutualFunds"_L1,
    .table = "MutualFunds"_L1,
    .title = "Mutual Funds Information Of -- "_L1,
    .attachmentPrefix = "Muf_"_L1,
    .addCaption = "&Add New Mutual Fund"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "mutual funds information can be created."_L1,
    .deleteNoun = "mutual funds information?"_L1,
    .frames = mutualFundsFrames,
};

constexpr Frame treasuryNotesFrames[] = {
    {"Family Member"_L1},
    {"Treasury Notes Information"_L1, "Type"_L1},
    {"Comment/Documents Location/Where Held"_L1, "Comment"_L1},
};
constexpr ScreenDefinition treasuryNotes{
    .name = "frmTreasuryNotes"_L1,
    .table = "TreasuryNotes"_L1,
    .title = "Treasury Notes Information Of -- "_L1,
    .attachmentPrefix = "Trn_"_L1,
    .addCaption = "&Add New Treasury Note"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "treasury note information can be created."_L1,
    .deleteNoun = "treasury note information?"_L1,
    .frames = treasuryNotesFrames,
};

constexpr Frame investmentStrategyFrames[] = {
    {"Family Member"_L1},
    {"Investment Strategy"_L1, "InvestmentStrategy"_L1},
};
constexpr ScreenDefinition investmentStrategy{
    .name = "frmInvestmentStrategy"_L1,
    .table = "InvestmentStrategy"_L1,
    .title = "Investment Strategy Information Of -- "_L1,
    .attachmentPrefix = "Ins_"_L1,
    .addCaption = "&Add New Investment Strategy"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "investment strategy information can be created."_L1,
    .deleteNoun = "investment strategy information?"_L1,
    .reportsLoadFailure = true,
    .frames = investmentStrategyFrames,
};

constexpr Frame bondsFrames[] = {
    {"Family Member"_L1},
    {"Bond Information"_L1, "Payer"_L1, "TaxExempt"_L1},
    {"Comment/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition bonds{
    .name = "frmBonds"_L1,
    .table = "Bonds"_L1,
    .title = "Bonds Information Of -- "_L1,
    .attachmentPrefix = "Bnd_"_L1,
    .addCaption = "&Add New Bond"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "bond information can be created."_L1,
    .deleteNoun = "bond information?"_L1,
    .frames = bondsFrames,
};

constexpr ScreenDefinition investmentGroup[] = {
    brokerageAcct,
    otherSecurities,
    annuity,
    stocks,
    savingsBonds,
    mutualFunds,
    treasuryNotes,
    investmentStrategy,
    bonds,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> investmentEntries() {
    return investmentGroup;
}

}  // namespace screens
