#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr ComboColumn brokerageAcctCombos[] = {{1, "State"_L1, 6}};
constexpr Frame brokerageAcctFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Brokerage Account Information"_L1, {1, 14}, {}},
    {2, "Comment/Document Locations"_L1, {15, 15}, {}},
};
constexpr ScreenDefinition brokerageAcct{
    .name = "frmBrokerageAcct"_L1,
    .table = "BrokerageAccount"_L1,
    .recordset = "adoBrokerageAcctsRS"_L1,
    .title = "Brokerage Account Information Of -- "_L1,
    .attachmentPrefix = "Brk_"_L1,
    .addCaption = "&Add New Brokerage Acct"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "brokerage account information can be created."_L1,
    .deleteNoun = "brokerage account information?"_L1,
    .combos = brokerageAcctCombos,
    .frames = brokerageAcctFrames,
};

// The ending names another subject than the screen's, and is meant to.
constexpr DateColumn otherSecuritiesDates[] = {
    {2, "MaturityDate"_L1},
    {5, "InterestDate"_L1},
    {8, "ValuationDate"_L1},
};
constexpr FieldCheck otherSecuritiesChecks[] = {
    {2, Check::Date},
    {4, Check::Number},
    {5, Check::Date},
    {7, Check::Number},
    {8, Check::Date},
};
constexpr Frame otherSecuritiesFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Investment Information"_L1, {1, 8}, {}},
    {2, "Comment/Documents Location"_L1, {9, 9}, {}},
};
constexpr ScreenDefinition otherSecurities{
    .name = "frmOtherSecurities"_L1,
    .table = "OtherSecurities"_L1,
    .recordset = "adoOtherSecuritiesRS"_L1,
    .title = "Other Securities Information Of -- "_L1,
    .attachmentPrefix = "Osc_"_L1,
    .addCaption = "&Add New Investment"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "treasury note information can be created."_L1,
    .deleteNoun = "other securities information?"_L1,
    .dates = otherSecuritiesDates,
    .checks = otherSecuritiesChecks,
    .rateBox = 4,
    .frames = otherSecuritiesFrames,
};

constexpr ComboColumn annuityCombos[] = {{1, "State"_L1, 5}};
constexpr DateColumn annuityDates[] = {
    {12, "PurchaseDate"_L1},
    {13, "MaturityDate"_L1},
};
constexpr FieldCheck annuityChecks[] = {
    {12, Check::Date},
    {13, Check::Date},
};
constexpr Frame annuityFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Annuity Information"_L1, {1, 13}, {0, 0}},
    {2, "Comment/Documents Location/Qualification Type"_L1, {14, 14}, {}},
};
constexpr ScreenDefinition annuity{
    .name = "frmAnnuity"_L1,
    .table = "Annuities"_L1,
    .recordset = "adoAnnuitiesRS"_L1,
    .title = "Annuities Information Of -- "_L1,
    .attachmentPrefix = "Ann_"_L1,
    .addCaption = "&Add New Annuity"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "annuity information can be created."_L1,
    .deleteNoun = "annuity information?"_L1,
    .combos = annuityCombos,
    .dates = annuityDates,
    .checks = annuityChecks,
    .frames = annuityFrames,
};

constexpr ComboColumn stocksCombos[] = {{1, "State"_L1, 5}};
constexpr DateColumn stocksDates[] = {{13, "ValuationDate"_L1}};
constexpr FieldCheck stocksChecks[] = {
    {11, Check::Number},
    {12, Check::Number},
    {13, Check::Date},
};
constexpr Frame stocksFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Stock Information"_L1, {1, 13}, {0, 0}},
    {2, "Comment/Documents Location"_L1, {14, 14}, {}},
};
constexpr ScreenDefinition stocks{
    .name = "frmStocks"_L1,
    .table = "Stocks"_L1,
    .recordset = "adoStocksRS"_L1,
    .title = "Stocks Information Of -- "_L1,
    .attachmentPrefix = "Stk_"_L1,
    .addCaption = "&Add New Stock"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "stock information can be created."_L1,
    .deleteNoun = "stock information?"_L1,
    .combos = stocksCombos,
    .dates = stocksDates,
    .checks = stocksChecks,
    .frames = stocksFrames,
};

constexpr DateColumn savingsBondsDates[] = {
    {2, "MaturityDate"_L1},
    {4, "ValuationDate"_L1},
};
constexpr FieldCheck savingsBondsChecks[] = {
    {2, Check::Date},
    {4, Check::Date},
    {5, Check::Number},
    {6, Check::Number},
    {7, Check::Number},
};
constexpr Frame savingsBondsFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Savings Bond Information"_L1, {1, 8}, {}},
    {2, "Comment/Documents Location/Where Held"_L1, {9, 9}, {}},
};
constexpr ScreenDefinition savingsBonds{
    .name = "frmSavingsBonds"_L1,
    .table = "SavingsBonds"_L1,
    .recordset = "adoSavingsBondsRS"_L1,
    .title = "Savings SavingsBonds Information Of -- "_L1,
    .attachmentPrefix = "Svb_"_L1,
    .addCaption = "&Add New Savings Bond"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "savings bond information can be created."_L1,
    .deleteNoun = "savings bond information?"_L1,
    .dates = savingsBondsDates,
    .checks = savingsBondsChecks,
    .rateBox = 7,
    .frames = savingsBondsFrames,
};

constexpr ComboColumn mutualFundsCombos[] = {{1, "State"_L1, 5}};
constexpr DateColumn mutualFundsDates[] = {{12, "ValuationDate"_L1}};
constexpr FieldCheck mutualFundsChecks[] = {
    {11, Check::Number},
    {12, Check::Date},
    {13, Check::Number},
};
constexpr Frame mutualFundsFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Mutual Fund Information"_L1, {1, 14}, {}},
    {2, "Comment/Documents Location"_L1, {15, 15}, {}},
};
constexpr ScreenDefinition mutualFunds{
    .name = "frmMutualFunds"_L1,
    .table = "MutualFunds"_L1,
    .recordset = "adoMutualFundsRS"_L1,
    .title = "Mutual Funds Information Of -- "_L1,
    .attachmentPrefix = "Muf_"_L1,
    .addCaption = "&Add New Mutual Fund"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "mutual funds information can be created."_L1,
    .deleteNoun = "mutual funds information?"_L1,
    .combos = mutualFundsCombos,
    .dates = mutualFundsDates,
    .checks = mutualFundsChecks,
    .frames = mutualFundsFrames,
};

constexpr DateColumn treasuryNotesDates[] = {
    {2, "MaturityDate"_L1},
    {4, "InterestDate"_L1},
    {6, "ValuationDate"_L1},
    {8, "TradingAtDate"_L1},
};
constexpr FieldCheck treasuryNotesChecks[] = {
    {2, Check::Date},
    {3, Check::Number},
    {4, Check::Date},
    {5, Check::Number},
    {6, Check::Date},
    {7, Check::Number},
    {8, Check::Date},
};
constexpr Frame treasuryNotesFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Treasury Notes Information"_L1, {1, 8}, {}},
    {2, "Comment/Documents Location/Where Held"_L1, {9, 9}, {}},
};
constexpr ScreenDefinition treasuryNotes{
    .name = "frmTreasuryNotes"_L1,
    .table = "TreasuryNotes"_L1,
    .recordset = "adoTreasuryNotesRS"_L1,
    .title = "Treasury Notes Information Of -- "_L1,
    .attachmentPrefix = "Trn_"_L1,
    .addCaption = "&Add New Treasury Note"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "treasury note information can be created."_L1,
    .deleteNoun = "treasury note information?"_L1,
    .dates = treasuryNotesDates,
    .checks = treasuryNotesChecks,
    .rateBox = 3,
    .frames = treasuryNotesFrames,
};

constexpr Frame investmentStrategyFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Investment Strategy"_L1, {1, 1}, {}},
};
constexpr ScreenDefinition investmentStrategy{
    .name = "frmInvestmentStrategy"_L1,
    .table = "InvestmentStrategy"_L1,
    .recordset = "adoInvestmentStrategyRS"_L1,
    .title = "Investment Strategy Information Of -- "_L1,
    .attachmentPrefix = "Ins_"_L1,
    .addCaption = "&Add New Investment Strategy"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "investment strategy information can be created."_L1,
    .deleteNoun = "investment strategy information?"_L1,
    .reportsLoadFailure = true,
    .frames = investmentStrategyFrames,
};

constexpr ComboColumn bondsCombos[] = {{1, "State"_L1, 5}};
constexpr DateColumn bondsDates[] = {
    {11, "ValuationDate"_L1},
    {12, "MaturityDate"_L1},
    {13, "InterestDate"_L1},
};
constexpr FieldCheck bondsChecks[] = {
    {10, Check::Number},
    {11, Check::Date},
    {12, Check::Date},
    {13, Check::Date},
    {14, Check::Number},
};
constexpr Frame bondsFrames[] = {
    {0, "Family Member"_L1, {0, 0}, {}},
    {1, "Bond Information"_L1, {1, 14}, {0, 0}},
    {2, "Comment/Documents Location"_L1, {15, 15}, {}},
};
constexpr ScreenDefinition bonds{
    .name = "frmBonds"_L1,
    .table = "Bonds"_L1,
    .recordset = "adoBondsRS"_L1,
    .title = "Bonds Information Of -- "_L1,
    .attachmentPrefix = "Bnd_"_L1,
    .addCaption = "&Add New Bond"_L1,
    .ownerLabel = "Person:"_L1,
    .refusal = noFamilyMember,
    .saveEnding = "bond information can be created."_L1,
    .deleteNoun = "bond information?"_L1,
    .combos = bondsCombos,
    .dates = bondsDates,
    .checks = bondsChecks,
    .rateBox = 14,
    .frames = bondsFrames,
};

constexpr ScreenDefinition entries[] = {
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
    return entries;
}

}  // namespace screens
