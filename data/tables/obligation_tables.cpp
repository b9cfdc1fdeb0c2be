#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

// One table for loans, mortgages and debts owed to the family, told apart by Type. It holds every column of the
// three; labels and lengths are those of the loans, and the other two windows say where theirs differ.
constexpr Column obligations[] = {
    {"Type"_L1,             {},                        Whole,     0, {},              {}, Nowhere},
    {"Name"_L1,             "Borrowed From:"_L1,       Text,     50},
    {"Phone"_L1,            "Phone:"_L1,               Phone,    50},
    {"Addr"_L1,             "Address:"_L1,             Text,     50},
    {"City"_L1,             "City:"_L1,                City,     50},
    {"State"_L1,            "State:"_L1,               Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,              "Zip:"_L1,                 Zip,      10},
    {"Reason"_L1,           "Reason:"_L1,              Text,     50},
    {"TotalAmount"_L1,      "Total Amount:"_L1,        Number,    0, "#,##0.00"_L1},
    {"InterestRateType"_L1, "Interest Type:"_L1,       Text,      0, {}, "Simple, Compound, No Interest Rate"_L1},
    {"Rate"_L1,             "Interest Rate:"_L1,       Number,    0, "0.000"_L1},
    {"Payment"_L1,          "Payment:"_L1,             Number,    0, "#,##0.00"_L1},
    {"PaymentPer"_L1,       "Paid Per:"_L1,            Text,     50, {},              paymentModes},
    {"Length"_L1,           "Length:"_L1,              Text},
    {"LoanNumber"_L1,       "Loan Number:"_L1,         Text,     50},
    {"OriginationDate"_L1,  "Date of Origination:"_L1, Date},
    {"Comment"_L1,          "Comment/Collateral/Other Terms:"_L1, LongText},
    {"PMI"_L1,              "PMI"_L1,                  YesNo},
};

// One table for alimony and child support, told apart by Type.
constexpr Column alimonyChildSupport[] = {
    {"Type"_L1,         {},                  Whole,     0, {},              {}, Nowhere},
    {"Name"_L1,         "Pay To:"_L1,        Text,     50},
    {"Phone"_L1,        "Phone:"_L1,         Phone,    50},
    {"Addr"_L1,         "Address:"_L1,       Text,     50},
    {"City"_L1,         "City:"_L1,          City,     50},
    {"State"_L1,        "State:"_L1,         Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,          "Zip:"_L1,           Zip,      10},
    {"CourtIssuing"_L1, "Court Issuing:"_L1, Text,     50},
    {"CaseNumber"_L1,   "Case Number:"_L1,   Text,     50},
    {"Payment"_L1,      "Payment:"_L1,       Number,    0, "#,##0.00"_L1},
    {"PaymentPer"_L1,   "Paid Per:"_L1,      Text,     50, {},              "Week, Month, Year"_L1},
    {"Comment"_L1,      "Comment/Location of Court Orders:"_L1, LongText},
};

// ExpirationDate is month and year as embossed, not a date.
constexpr Column creditCards[] = {
    {"CardType"_L1,        "Card Type:"_L1,                Text,     50, {},              "Visa, Master Card, etc."_L1},
    {"AcctNumber"_L1,      "Account #:"_L1,                Text,     50},
    {"Limit"_L1,           "Limit:"_L1,                    Number,    0, "#,##0.00"_L1},
    {"ExpirationDate"_L1,  "Exp. Date:"_L1,                Text,      5, {},              "month/year"_L1},
    {"InterestRate"_L1,    "Interest Rate:"_L1,            Number,    0, "0.000"_L1},
    {"LostStolenPhone"_L1, "Lost/Stolen Phone:"_L1,        Phone,    50},
    {"Institution"_L1,     "Institution:"_L1,              Text,     50},
    {"Phone"_L1,           "Phone:"_L1,                    Phone,    50},
    {"Addr"_L1,            "Address:"_L1,                  Text,     50},
    {"City"_L1,            "City:"_L1,                     City,     50},
    {"State"_L1,           "State:"_L1,                    Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,             "Zip:"_L1,                      Zip,      10},
    {"Comment"_L1,         "Comment/Additional Names:"_L1, LongText},
    {"Insurance"_L1,       "Insurance"_L1,                 YesNo},
};

constexpr Table obligationGroup[] = {
    {"Obligations"_L1,         Keys::Owner, obligations},
    {"AlimonyChildSupport"_L1, Keys::Owner, alimonyChildSupport},
    {"CreditCards"_L1,         Keys::Owner, creditCards},
};

// clang-format on

}  // namespace

std::span<const Table> obligationTables() {
    return obligationGroup;
}

}  // namespace data
