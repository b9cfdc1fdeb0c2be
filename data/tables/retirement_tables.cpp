#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

constexpr Column retirementAccounts[] = {
    {"Payor"_L1,                "Payor:"_L1,                 Text,     50},
    {"Type"_L1,                 "Type:"_L1,                  Text,     50},
    {"Addr"_L1,                 "Address:"_L1,               Text,     50},
    {"City"_L1,                 "City:"_L1,                  City,     50},
    {"State"_L1,                "State:"_L1,                 Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,                  "Zip:"_L1,                   Zip,      10},
    {"Phone"_L1,                "Phone:"_L1,                 Phone,    50},
    {"Contact"_L1,              "Contact:"_L1,               Text,     50, "#,##0.00"_L1},
    {"AccountNumber"_L1,        "Acct Number:"_L1,           Text,     50},
    {"YearsContributed"_L1,     "Years Contributed:"_L1,     Number},
    {"Balance"_L1,              "Balance:"_L1,               Number,    0, "#,##0.00"_L1},
    {"BalanceDate"_L1,          "Balance Date:"_L1,          Date,      0, "M/d/yy"_L1},
    {"WithdrawalStartDate"_L1,  "Withdrawal Start Date:"_L1, Date,      0, "#,##0.000"_L1,  {}, Box, {}, ahead},
    {"Comment"_L1,              "Comment/Documents Location:"_L1, LongText},
    {"Mortgaged"_L1,            "Mortgaged"_L1,              YesNo},
    {"CurrentlyWithdrawing"_L1, "Currently Withdrawing"_L1,  YesNo},
};

constexpr Column socialSecurity[] = {
    {"MonthlyBenefit"_L1, "Monthly Benefit:"_L1, Number,    0, "#,##0.00"_L1},
    {"Comment"_L1,        "Comment:"_L1,         LongText},
    {"Collecting"_L1,     "Collecting Social Security"_L1, YesNo},
    {"Retirement"_L1,     "Retirement"_L1,       YesNo},
    {"Disability"_L1,     "Disability"_L1,       YesNo},
    {"Dependent"_L1,      "Dependent"_L1,        YesNo},
    {"Survivor"_L1,       "Survivor"_L1,         YesNo},
};

constexpr Column taxes[] = {
    {"Company"_L1,          "Company:"_L1,            Text,     50, {},              "Tax Preparer Company"_L1},
    {"Phone"_L1,            "Phone:"_L1,              Phone,    50},
    {"Addr"_L1,             "Address:"_L1,            Text,     50},
    {"City"_L1,             "City:"_L1,               City,     50},
    {"State"_L1,            "State:"_L1,              Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,              "Zip:"_L1,                Zip,      10},
    {"TaxPreparer"_L1,      "Tax Preparer:"_L1,       Text,     50},
    {"TPPhone"_L1,          "Tax Preparer Phone:"_L1, Phone,    50},
    {"Amount"_L1,           "Amount Owed:"_L1,        Number,    0, "#,##0.00"_L1},
    {"To"_L1,               "To:"_L1,                 Text,     50, {},              "State, Federal..."_L1},
    {"For"_L1,              "Year(s):"_L1,            Text,     50, "#,##0.00"_L1, "Year for which the taxes are owed"_L1},
    {"Comment"_L1,          "Comment/Deductions/Documents Location:"_L1, LongText},
    {"OutstandingTaxes"_L1, "Outstanding Taxes"_L1,   YesNo},
};

constexpr Table retirementGroup[] = {
    {"RetirementAccounts"_L1, Keys::Owner, retirementAccounts},
    {"SocialSecurity"_L1,     Keys::Owner, socialSecurity},
    {"Taxes"_L1,              Keys::Owner, taxes},
};

// clang-format on

}  // namespace

std::span<const Table> retirementTables() {
    return retirementGroup;
}

}  // namespace data
