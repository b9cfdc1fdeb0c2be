#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

constexpr Column investmentStrategy[] = {
    {"InvestmentStrategy"_L1, "Investment Strategy:"_L1, LongText},
};

constexpr Column brokerageAccount[] = {
    {"FirmName"_L1,         "Firm:"_L1,              Text,     50},
    {"BrokerName"_L1,       "Broker:"_L1,            Text,     50},
    {"Addr"_L1,             "Address:"_L1,           Text,     50},
    {"Phone"_L1,            "Phone:"_L1,             Phone,    50, "#,##0.00"_L1},
    {"City"_L1,             "City:"_L1,              City,     50},
    {"State"_L1,            "State:"_L1,             Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,              "Zip:"_L1,               Zip,      10},
    {"AccountTitle"_L1,     "Acct Title:"_L1,        Text,     50, {},              "Single, Joint, Owned by Trust"_L1},
    {"AccountNumber"_L1,    "Acct Number:"_L1,       Text,     50, "#,##0.00"_L1},
    {"AccountType"_L1,      "Type:"_L1,              Text,     50, {}, "Retirement, Trust, Joint, or Custodial"_L1},
    {"PriBeneficiary"_L1,   "Pri. Beneficiary:"_L1,  Text,     50, {},              "Primary Beneficiary"_L1},
    {"Trustee"_L1,          "Trustee:"_L1,           Text,     50, {},              "Trustee"_L1},
    {"ContBeneficiary"_L1,  "Cont. Beneficiary:"_L1, Text,     50, {},              "Contingent Beneficiary"_L1},
    {"SuccessorTrustee"_L1, "Suc. Trustee:"_L1,      Text,     50, {},              "Successor Trustee"_L1},
    {"Comment"_L1,          "Comment/Document Locations:"_L1, LongText},
};

// The value of a share is labelled as what it cost, and its date as that of the purchase.
constexpr Column stocks[] = {
    {"Company"_L1,        "Company:"_L1,       Text,     50},
    {"Broker"_L1,         "Broker:"_L1,        Text,     50},
    {"Addr"_L1,           "Address:"_L1,       Text,     50},
    {"City"_L1,           "City:"_L1,          City,     50},
    {"State"_L1,          "State:"_L1,         Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,            "Zip:"_L1,           Zip,      10},
    {"Phone"_L1,          "Phone:"_L1,         Phone,    50},
    {"CUSIP"_L1,          "CUSIP #:"_L1,       Text,      9},
    {"StockName"_L1,      "Stock Name:"_L1,    Text,     50, "#,##0.00"_L1},
    {"StockType"_L1,      "Stock Type:"_L1,    Text,     50, "#,##0.00"_L1,   "Publicly Traded,  Private"_L1},
    {"NumberOfShares"_L1, "# Shares:"_L1,      Number},
    {"ValuePerShare"_L1,  "Cost Basis:"_L1,    Number,    0, "#,##0.00"_L1},
    {"ValuationDate"_L1,  "Purchase Date:"_L1, Date,      0, "M/d/yy"_L1,     "Maturity Date"_L1},
    {"Comment"_L1,        "Comment/Documents Location:"_L1, LongText},
    {"Dividend"_L1,       "Dividend"_L1,       YesNo},
};

constexpr Column annuities[] = {
    {"Payer"_L1,        "Issuer:"_L1,        Text,     50},
    {"Broker"_L1,       "Broker:"_L1,        Text,     50},
    {"Addr"_L1,         "Address:"_L1,       Text,     50},
    {"City"_L1,         "City:"_L1,          City,     50},
    {"State"_L1,        "State:"_L1,         Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,          "Zip:"_L1,           Zip,      10},
    {"Phone"_L1,        "Phone:"_L1,         Phone,    50},
    {"PolicyNumber"_L1, "Policy #:"_L1,      Text,      9},
    {"AnnuityType"_L1,  "Annuity Type:"_L1,  Text,     50, "#,##0.00"_L1,   "Variable, Fixed, Indexed, Immediate"_L1},
    {"Annuitant"_L1,    "Annuitant:"_L1,     Text,      0, "M/d/yy"_L1},
    {"Beneficiary"_L1,  "Beneficiary:"_L1,   Text,      0, "0.000%"_L1},
    {"PurchaseDate"_L1, "Purchase Date:"_L1, Date,      0, "M/d/yy"_L1,     "Maturity Date"_L1},
    {"MaturityDate"_L1, "Maturity:"_L1,      Date,      0, "M/d/yy"_L1,     "Maturity Date"_L1, Box, {}, ahead},
    {"Comment"_L1,      "Comment/Documents Location:/Qualification Type"_L1, LongText},
    {"Qualified"_L1,    "Qualified"_L1,      YesNo},
};

constexpr Column bonds[] = {
    {"Payer"_L1,         "Issuer:"_L1,        Text,     50},
    {"Broker"_L1,        "Broker:"_L1,        Text,     50},
    {"Addr"_L1,          "Address:"_L1,       Text,     50},
    {"City"_L1,          "City:"_L1,          City,     50},
    {"State"_L1,         "State:"_L1,         Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,           "Zip:"_L1,           Zip,      10},
    {"Phone"_L1,         "Phone:"_L1,         Phone,    50},
    {"CUSIP"_L1,         "CUSIP #:"_L1,       Text,      9},
    {"BondType"_L1,      "Bond Type:"_L1,     Text,     50, "#,##0.00"_L1,   "Corporate, Government, Municipal"_L1},
    {"Value"_L1,         "Cost Basis:"_L1,    Number,    0, "#,##0.00"_L1},
    {"ValuationDate"_L1, "Purchase Date:"_L1, Date,      0, "M/d/yy"_L1},
    {"MaturityDate"_L1,  "Maturity:"_L1,      Date,      0, "M/d/yy"_L1,     "Maturity Date"_L1, Box, {}, ahead},
    {"InterestDate"_L1,  "Call Date:"_L1,     Date,      0, "M/d/yy"_L1,     {}, Box, {}, ahead},
    {"InterestRate"_L1,  "Coupon Rate:"_L1,   Number,    0, "0.000"_L1},
    {"Comment"_L1,       "Comment/Documents Location:"_L1, LongText},
    {"TaxExempt"_L1,     "Tax Exempt"_L1,     YesNo},
};

constexpr Column mutualFunds[] = {
    {"Company"_L1,         "Company:"_L1,          Text,     50},
    {"Broker"_L1,          "Broker:"_L1,           Text,     50},
    {"Addr"_L1,            "Address:"_L1,          Text,     50},
    {"City"_L1,            "City:"_L1,             City,     50},
    {"State"_L1,           "State:"_L1,            Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,             "Zip:"_L1,              Zip,      10},
    {"Phone"_L1,           "Phone:"_L1,            Phone},
    {"FundName"_L1,        "Fund Name:"_L1,        Text,     50, "#,##0.00"_L1},
    {"FundType"_L1,        "Fund Type:"_L1,        Text,      0, {}, "Growth, Growth and Income, Aggressive growth, Income"_L1},
    {"InvestmentStyle"_L1, "Investment Style:"_L1, Text,     50, "#,##0.00"_L1},
    {"Value"_L1,           "Cost Basis:"_L1,       Number,    0, "#,##0.00"_L1},
    {"ValuationDate"_L1,   "Purchase Date:"_L1,    Date,      0, "M/d/yy"_L1},
    {"NumberOwned"_L1,     "# of Shares:"_L1,      Number,    0, "#,##0.000"_L1},
    {"AccountNumber"_L1,   "Account #:"_L1,        Text,     50, "M/d/yy"_L1},
    {"Comment"_L1,         "Comment/Documents Location:"_L1, LongText},
};

// FaceValue is labelled as the market value; Value is what it cost.
constexpr Column savingsBonds[] = {
    {"Payer"_L1,         "Issuer:"_L1,        Text,     50},
    {"MaturityDate"_L1,  "Maturity Date:"_L1, Date,      0, {},              {}, Box, {}, ahead},
    {"CUSIP"_L1,         "CUSIP #:"_L1,       Text,      0, "#,##0.00"_L1},
    {"ValuationDate"_L1, "Purchase Date:"_L1, Date},
    {"FaceValue"_L1,     "Market Value:"_L1,  Number,    0, "#,##0.00"_L1},
    {"Value"_L1,         "Cost Basis:"_L1,    Number,    0, "#,##0.00"_L1},
    {"CouponRate"_L1,    "Coupon Rate:"_L1,   Number,    0, "0.000"_L1},
    {"CoOwner"_L1,       "CoOwner:"_L1,       Text,     50},
    {"Comment"_L1,       "Comment/Documents Location/Where Held:"_L1, LongText},
};

constexpr Column treasuryNotes[] = {
    {"Type"_L1,          "Type:"_L1,            Text,     50, {},              "Bill, Note, Bond, etc."_L1},
    {"MaturityDate"_L1,  "Maturity Date:"_L1,   Date,      0, {},              {}, Box, {}, ahead},
    {"InterestRate"_L1,  "Coupon Rate:"_L1,     Number,    0, "0.000"_L1},
    {"InterestDate"_L1,  "Interest Date:"_L1,   Date,      0, {},              {}, Box, {}, ahead},
    {"Value"_L1,         "Cost Basis:"_L1,      Number,    0, "#,##0.00"_L1},
    {"ValuationDate"_L1, "Purchase Date:"_L1,   Date},
    {"TradingAt"_L1,     "Trading At:"_L1,      Number,    0, "#,##0.00"_L1},
    {"TradingAtDate"_L1, "Trading At Date:"_L1, Date},
    {"Comment"_L1,       "Comment/Documents Location/Where Held:"_L1, LongText},
};

constexpr Column otherSecurities[] = {
    {"SecurityType"_L1,  "Type:"_L1,          Text,     50},
    {"MaturityDate"_L1,  "Maturity Date:"_L1, Date,      0, {},              {}, Box, {}, ahead},
    {"Payer"_L1,         "Payer:"_L1,         Text,     50},
    {"InterestRate"_L1,  "Interest Rate:"_L1, Number,    0, "0.000"_L1},
    {"InterestDate"_L1,  "Interest Date:"_L1, Date,      0, {},              {}, Box, {}, ahead},
    {"AccountNumber"_L1, "Acct #:"_L1,        Text,     50, "#,##0.00"_L1},
    {"Value"_L1,         "Cost Basis:"_L1,    Number,    0, "#,##0.00"_L1},
    {"ValuationDate"_L1, "Purchase Date:"_L1, Date},
    {"Comment"_L1,       "Comment/Documents Location:"_L1, LongText},
};

constexpr Table investmentGroup[] = {
    {"InvestmentStrategy"_L1, Keys::Owner, investmentStrategy},
    {"BrokerageAccount"_L1,   Keys::Owner, brokerageAccount},
    {"Stocks"_L1,             Keys::Owner, stocks},
    {"Annuities"_L1,          Keys::Owner, annuities},
    {"Bonds"_L1,              Keys::Owner, bonds},
    {"MutualFunds"_L1,        Keys::Owner, mutualFunds},
    {"SavingsBonds"_L1,       Keys::Owner, savingsBonds},
    {"TreasuryNotes"_L1,      Keys::Owner, treasuryNotes},
    {"OtherSecurities"_L1,    Keys::Owner, otherSecurities},
};

// clang-format on

}  // namespace

std::span<const Table> investmentTables() {
    return investmentGroup;
}

}  // namespace data
