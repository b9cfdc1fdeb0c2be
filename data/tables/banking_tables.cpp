#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

// The guarantee can be ticked and is never stored: there is no column for it here, unlike SavingsAccounts.
constexpr Column checkingAccounts[] = {
    {"BankName"_L1,        "Institution:"_L1,        Text,     50},
    {"Branch"_L1,          "Local Branch:"_L1,       Text,     50},
    {"Addr"_L1,            "Address:"_L1,            Text,     50},
    {"City"_L1,            "City:"_L1,               City,     50},
    {"State"_L1,           "State:"_L1,              Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,             "Zip:"_L1,                Zip,      10},
    {"Contact"_L1,         "Contact:"_L1,            Text,     50},
    {"Phone"_L1,           "Phone:"_L1,              Phone,    50, "#,##0.00"_L1},
    {"AccountNumber"_L1,   "Acct Number:"_L1,        Text,     50, "#,##0.00"_L1},
    {"Type"_L1,            "Type:"_L1,               Text,     50, {},              "Individual, Joint"_L1},
    {"MinimumBalance"_L1,  "Minimum Balance:"_L1,    Number,    0, "#,##0.00"_L1},
    {"AdditionalNames"_L1, "Additional Names:"_L1,   LongText},
    {"Comment"_L1,         "Comment/Statement Locations/Fee Information:"_L1, LongText},
    {{},                   "Overdraft Guarantee"_L1, YesNo},
};

constexpr Column savingsAccounts[] = {
    {"BankName"_L1,           "Institution:"_L1,        Text,     50},
    {"Branch"_L1,             "Local Branch:"_L1,       Text,     50},
    {"Addr"_L1,               "Address:"_L1,            Text,     50},
    {"City"_L1,               "City:"_L1,               City,     50},
    {"State"_L1,              "State:"_L1,              Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,                "Zip:"_L1,                Zip,      10},
    {"Contact"_L1,            "Contact:"_L1,            Text,     50},
    {"Phone"_L1,              "Phone:"_L1,              Phone,    50, "#,##0.00"_L1},
    {"Type"_L1,               "Type:"_L1,               Text,     50, {},              "Individual, Joint, etc."_L1},
    {"AccountNumber"_L1,      "Acct Number:"_L1,        Text,     50, "#,##0.00"_L1},
    {"InterestRate"_L1,       "Interest Rate:"_L1,      Number,    0, "0.000"_L1},
    {"MinimumBalance"_L1,     "Min Balance:"_L1,        Number,    0, "#,##0.00"_L1},
    {"AdditionalNames"_L1,    "Additional Names:"_L1,   LongText},
    {"Comment"_L1,            "Comment/Passbook Location/Fee Information:"_L1, LongText},
    {"OverdraftGuarantee"_L1, "Overdraft Guarantee"_L1, YesNo},
};

constexpr Column cds[] = {
    {"BankName"_L1,        "Institution:"_L1,  Text,     50},
    {"Branch"_L1,          "Local Branch:"_L1, Text,     50},
    {"Addr"_L1,            "Address:"_L1,      Text,     50},
    {"City"_L1,            "City:"_L1,         City,     50},
    {"State"_L1,           "State:"_L1,        Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,             "Zip:"_L1,          Zip,      10},
    {"Contact"_L1,         "Contact:"_L1,      Text,     50},
    {"Phone"_L1,           "Phone:"_L1,        Phone,    50, "#,##0.00"_L1},
    {"Type"_L1,            "Type:"_L1,         Text,     50, {},              "Individual, Joint, etc."_L1},
    {"AccountNumber"_L1,   "Acct Number:"_L1,  Text,     50, "#,##0.00"_L1},
    {"CDAmount"_L1,        "CD Amount:"_L1,    Number,    0, "#,##0.00"_L1},
    {"MaturityDate"_L1,    "Maturity:"_L1,     Date,      0, "M/d/yy"_L1,     "Maturity Date"_L1, Box, {}, ahead},
    {"AdditionalNames"_L1, "Comment/Additional Names on CD/CD Location:"_L1, LongText},
    {"Comment"_L1,         "Comment/Passbook Location:"_L1, LongText},
};

constexpr Column moneyMarkets[] = {
    {"BankName"_L1,        "Institution:"_L1,     Text,     50},
    {"Branch"_L1,          "Local Branch:"_L1,    Text,     50},
    {"Addr"_L1,            "Address:"_L1,         Text,     50},
    {"City"_L1,            "City:"_L1,            City,     50},
    {"State"_L1,           "State:"_L1,           Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,             "Zip:"_L1,             Zip,      10},
    {"Contact"_L1,         "Contact:"_L1,         Text,     50},
    {"Phone"_L1,           "Phone:"_L1,           Phone,    50, "#,##0.00"_L1},
    {"AccountNumber"_L1,   "Acct Number:"_L1,     Text,     50, "#,##0.00"_L1},
    {"Type"_L1,            "Acct Type:"_L1,       Text,     50},
    {"CurrentBalance"_L1,  "Current Balance:"_L1, Number,    0, "#,##0.00"_L1},
    {"AdditionalNames"_L1, "Additional Names on Money Market:"_L1, LongText},
    {"Comment"_L1,         "Comment/Statement Locations:"_L1, LongText},
};

constexpr Table bankingGroup[] = {
    {"CheckingAccounts"_L1, Keys::Owner, checkingAccounts},
    {"SavingsAccounts"_L1,  Keys::Owner, savingsAccounts},
    {"CDs"_L1,              Keys::Owner, cds},
    {"MoneyMarkets"_L1,     Keys::Owner, moneyMarkets},
};

// clang-format on

}  // namespace

std::span<const Table> bankingTables() {
    return bankingGroup;
}

}  // namespace data
