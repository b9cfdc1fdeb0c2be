#include "data/tables/groups.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using enum FieldKind;
using enum ShownIn;

// clang-format off

constexpr Column medicalInsurance[] = {
    {"PolicyType"_L1,       "Policy Type:"_L1,       Text,     50},
    {"Number"_L1,           "Policy Number:"_L1,     Text,     50},
    {"Deductible"_L1,       "Deductible:"_L1,        Number,    0, "0.00"_L1},
    {"DeductiblePer"_L1,    "Deductible Per:"_L1,    Text},
    {"CoverageLimit"_L1,    "Coverage Limit:"_L1,    Number,    0, "#,##0.00"_L1},
    {"PremiumAmount"_L1,    "Premium:"_L1,           Number,    0, "#,##0.00"_L1},
    {"PaymentMethod"_L1,    "Payment Mode:"_L1,      Text,     50, "#,##0.00"_L1,   paymentModes},
    {"LifetimeBenefits"_L1, "Lifetime Benefits:"_L1, Number,    0, "#,##0.00"_L1},
    {"InsuranceCompany"_L1, "Insurance Co:"_L1,      Text,     50},
    {"Phone"_L1,            "Phone:"_L1,             Phone,    50},
    {"Agent"_L1,            "Agent:"_L1,             Text,     50},
    {"AgentPhone"_L1,       "Agent Phone:"_L1,       Phone,    50},
    {"Comment"_L1,          "Comment/Documents Location:"_L1, LongText},
    {"LifeInsurance"_L1,    "Life Insurance"_L1,     YesNo},
};

// CashValue is labelled as what is paid out on death.
constexpr Column lifeInsurance[] = {
    {"PolicyType"_L1,         "Policy Type:"_L1,             Text,     50},
    {"PolicyNumber"_L1,       "Policy Number:"_L1,           Text,     50},
    {"Owner"_L1,              "Owner:"_L1,                   Text,     50, "0.0000"_L1},
    {"Beneficiary"_L1,        "Beneficiary:"_L1,             Text,     50},
    {"FaceAmount"_L1,         "Face Amount:"_L1,             Number,    0, "#,##0.00"_L1},
    {"CashValue"_L1,          "Death Benefit:"_L1,           Number,    0, "#,##0.00"_L1},
    {"AnnualPremium"_L1,      "Premium:"_L1,                 Number,    0, "#,##0.00"_L1},
    {"ExpirationDate"_L1,     "Expiration Date:"_L1,         Date,      0, "#,##0.00"_L1,   {}, Box, {}, ahead},
    {"HowWhenPaid"_L1,        "Payment Mode:"_L1,            Text,     50, "#,##0.00"_L1,   paymentModes},
    {"OutstandingLoanAmt"_L1, "Outstanding Loan Amount:"_L1, Number,    0, "#,##0.00"_L1},
    {"InsuranceCompany"_L1,   "Insurance Co:"_L1,            Text,     50},
    {"Phone"_L1,              "Phone:"_L1,                   Phone,    50},
    {"Agent"_L1,              "Agent:"_L1,                   Text,     50},
    {"AgentPhone"_L1,         "Agent Phone:"_L1,             Phone,    50},
    {"Comment"_L1,            "Comment/Documents Location/Contingent Beneficiary:"_L1, LongText},
};

// Owner is labelled as whoever holds the lien.
constexpr Column autoInsurance[] = {
    {"Coverage"_L1,         "Coverage:"_L1,           Text,     50},
    {"PolicyNumber"_L1,     "Policy Number:"_L1,      Text,     50},
    {"Owner"_L1,            "Lien Holder:"_L1,        Text,     50, "0.0000"_L1},
    {"AnnualPremium"_L1,    "Premium:"_L1,            Number,    0, "#,##0.00"_L1},
    {"HowWhenPaid"_L1,      "Payment Mode:"_L1,       Text,      0, "#,##0.00"_L1,   paymentModes},
    {"ExpirationDate"_L1,   "Expiration Date:"_L1,    Date,      0, "#,##0.00"_L1,   {}, Box, {}, ahead},
    {"NumberVehicles"_L1,   "Number of Vehicles:"_L1, Number},
    {"InsuranceCompany"_L1, "Insurance Co:"_L1,       Text,     50},
    {"Phone"_L1,            "Phone:"_L1,              Phone,    50},
    {"Agent"_L1,            "Agent:"_L1,              Text,     50},
    {"AgentPhone"_L1,       "Agent Phone:"_L1,        Phone,    50},
    {"DriversCovered"_L1,   "Covered Drivers:"_L1,    LongText},
    {"Comment"_L1,          "Comment/Documents Location:"_L1, LongText},
    {"PremiumDiscounts"_L1, "Premium Discounts"_L1,   YesNo},
};

constexpr Column homeInsurance[] = {
    {"Coverage"_L1,         "Coverage:"_L1,        Text,     50},
    {"PolicyNumber"_L1,     "Policy Number:"_L1,   Text,     50},
    {"Addr"_L1,             "Home Addr:"_L1,       Text,     50},
    {"City"_L1,             "City:"_L1,            City,     50},
    {"State"_L1,            "State:"_L1,           Text,      0, {},              {}, StateCombo},
    {"Zip"_L1,              "Zip:"_L1,             Zip,      10},
    {"Deductible"_L1,       "Deductible:"_L1,      Number,    0, "#,##0.00"_L1},
    {"AnnualPremium"_L1,    "Premium:"_L1,         Number,    0, "#,##0.00"_L1},
    {"HowWhenPaid"_L1,      "Payment Mode:"_L1,    Text,     50, "0.0000"_L1,     paymentModes},
    {"ExpirationDate"_L1,   "Expiration Date:"_L1, Date,      0, "#,##0.00"_L1,   {}, Box, {}, ahead},
    {"InsuranceCompany"_L1, "Insurance Co:"_L1,    Text,     50},
    {"Phone"_L1,            "Phone:"_L1,           Phone,    50},
    {"Agent"_L1,            "Agent:"_L1,           Text,     50},
    {"AgentPhone"_L1,       "Agent Phone:"_L1,     Phone,    50},
    {"Comment"_L1,          "Comment/Document Location:"_L1, LongText},
};

constexpr Column disabilityInsurance[] = {
    {"Coverage"_L1,          "Coverage:"_L1,           Text,     50},
    {"PolicyNumber"_L1,      "Policy Number:"_L1,      Text,     50},
    {"COLA"_L1,              "COLA:"_L1,               Number,    0, "0.000"_L1},
    {"Limits"_L1,            "Limits:"_L1,             Text,     50},
    {"PremiumAmount"_L1,     "Premium:"_L1,            Number,    0, "#,##0.00"_L1},
    {"HowWhenPaid"_L1,       "Payment Mode:"_L1,       Text,      0, "#,##0.00"_L1,   paymentModes},
    {"MonthlyBenefit"_L1,    "Monthly Benefit:"_L1,    Number,    0, "#,##0.00"_L1},
    {"EliminationPeriod"_L1, "Elimination Period:"_L1, Text,     50},
    {"BenefitPeriod"_L1,     "Benefit Period:"_L1,     Text,     50},
    {"InsuranceCompany"_L1,  "Insurance Co:"_L1,       Text,     50},
    {"InsCoPhone"_L1,        "Phone:"_L1,              Phone,    50},
    {"Agent"_L1,             "Agent:"_L1,              Text,     50},
    {"AgentPhone"_L1,        "Agent Phone:"_L1,        Phone,     0, "#,##0.00"_L1},
    {"Comment"_L1,           "Comment/Documents Location:"_L1, LongText},
};

constexpr Column umbrellaInsurance[] = {
    {"Coverage"_L1,         "Coverage:"_L1,      Text,     50},
    {"PolicyNumber"_L1,     "Policy Number:"_L1, Text,     50},
    {"CoverageAmount"_L1,   "Amount:"_L1,        Number,    0, "#,##0.00"_L1},
    {"Limits"_L1,           "Limits:"_L1,        Text,     50},
    {"PremiumAmount"_L1,    "Premium:"_L1,       Number,    0, "#,##0.00"_L1},
    {"HowWhenPaid"_L1,      "Payment Mode:"_L1,  Text,     50, "#,##0.00"_L1,   paymentModes},
    {"InsuranceCompany"_L1, "Insurance Co:"_L1,  Text,     50},
    {"Phone"_L1,            "Phone:"_L1,         Phone,    50},
    {"Agent"_L1,            "Agent:"_L1,         Text,     50},
    {"AgentPhone"_L1,       "Agent Phone:"_L1,   Phone,    50},
    {"Comment"_L1,          "Comment/Documents Location:"_L1, LongText},
};

constexpr Column supplementalInsurance[] = {
    {"PolicyType"_L1,       "Policy Type:"_L1,    Text,     50},
    {"PolicyNumber"_L1,     "Policy Number:"_L1,  Text,     50},
    {"EffectiveDate"_L1,    "Effective Date:"_L1, Date},
    {"PremiumAmount"_L1,    "Premium:"_L1,        Number,    0, "#,##0.00"_L1},
    {"PaymentMethod"_L1,    "Payment Mode:"_L1,   Text,     50, "#,##0.00"_L1,   paymentModes},
    {"InsuranceCompany"_L1, "Insurance Co:"_L1,   Text,     50},
    {"Phone"_L1,            "Phone:"_L1,          Phone,    50},
    {"Agent"_L1,            "Agent:"_L1,          Text,     50},
    {"AgentPhone"_L1,       "Agent Phone:"_L1,    Phone,    50},
    {"Comment"_L1,          "Comment/Documents Location:"_L1, LongText},
};

constexpr Column otherInsurance[] = {
    {"PolicyType"_L1,       "Policy Type:"_L1,       Text,     50},
    {"PolicyNumber"_L1,     "Policy Number:"_L1,     Text,     50},
    {"Deductible"_L1,       "Deductible:"_L1,        Number,    0, "#,##0.00"_L1},
    {"DeductiblePer"_L1,    "Deductible Per:"_L1,    Text,     50},
    {"CoverageLimit"_L1,    "Coverage Limit:"_L1,    Number,    0, "#,##0.00"_L1},
    {"PremiumAmount"_L1,    "Premium:"_L1,           Number,    0, "#,##0.00"_L1},
    {"PaymentMethod"_L1,    "Payment Mode:"_L1,      Text,     50, "#,##0.00"_L1,   paymentModes},
    {"LifetimeBenefit"_L1,  "Lifetime Benefits:"_L1, Number,    0, "#,##0.00"_L1},
    {"ExpirationDate"_L1,   "Expiration Date:"_L1,   Date,      0, {},              {}, Box, {}, ahead},
    {"InsuranceCompany"_L1, "Insurance Co:"_L1,      Text,     50},
    {"Phone"_L1,            "Phone:"_L1,             Phone,    50},
    {"Agent"_L1,            "Agent:"_L1,             Text,     50},
    {"AgentPhone"_L1,       "Agent Phone:"_L1,       Phone,    50},
    {"Comment"_L1,          "Comment/Documents Location:"_L1, LongText},
    {"LifeInsurance"_L1,    "Life Insurance"_L1,     YesNo},
};

constexpr Table insuranceGroup[] = {
    {"MedicalInsurance"_L1,      Keys::Owner, medicalInsurance},
    {"LifeInsurance"_L1,         Keys::Owner, lifeInsurance},
    {"AutoInsurance"_L1,         Keys::Owner, autoInsurance},
    {"HomeInsurance"_L1,         Keys::Owner, homeInsurance},
    {"DisabilityInsurance"_L1,   Keys::Owner, disabilityInsurance},
    {"UmbrellaInsurance"_L1,     Keys::Owner, umbrellaInsurance},
    {"SupplementalInsurance"_L1, Keys::Owner, supplementalInsurance},
    {"OtherInsurance"_L1,        Keys::Owner, otherInsurance},
};

// clang-format on

}  // namespace

std::span<const Table> insuranceTables() {
    return insuranceGroup;
}

}  // namespace data
