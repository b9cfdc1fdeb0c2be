#include "app/dispatch_table.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace app {

namespace {

// clang-format off
constexpr DispatchRow rows[] = {
    // key                    window                          rows that are counted
    {"Birth"_L1,              "frmKinbook"_L1,                "Person"_L1,                                  Access::Leave, Data::OnLoad},
    {"Residences"_L1,         "frmResidences"_L1,             "Residences"_L1,                              Access::Apply, Data::OnLoad},
    {"Parents"_L1,            "frmParents"_L1,                "Parents"_L1,                                 Access::Apply, Data::OnLoad},
    {"Passports"_L1,          "frmPassport"_L1,               "Passports"_L1,                               Access::Apply, Data::OnLoad},
    {"Doctors"_L1,            "frmDoctors"_L1,                "Doctors"_L1,                                 Access::Apply, Data::OnLoad},
    {"MedicalLog"_L1,         "frmMedicalLog"_L1,             "MedicalLog"_L1,                              Access::Leave, Data::OnLoad},
    {"Religious"_L1,          "frmReligion"_L1,               "ReligiousPreference"_L1,                     Access::Apply, Data::OnLoad},
    {"Education"_L1,          "frmEducation"_L1,              "Education"_L1,                               Access::Apply, Data::OnLoad},
    {"Military"_L1,           "frmMilitary"_L1,               "MilitaryService"_L1,                         Access::Apply, Data::OnLoad},
    {"Memberships"_L1,        "frmMemberships"_L1,            "Memberships"_L1,                             Access::Apply, Data::OnLoad},
    {"Funeral"_L1,            "frmFuneral"_L1,                "Funeral"_L1,                                 Access::Apply, Data::OnLoad},
    {"AssetLiquidation"_L1,   "frmAssetLiquidation"_L1,       "AssetLiquidation"_L1,                        Access::Leave, Data::OnLoad},
    {"AssetLiquidation1"_L1,  "frmAssetLiquidation"_L1,       "AssetLiquidation"_L1,                        Access::Leave, Data::OnLoad},
    {"ShotRecords"_L1,        "frmShotRecords"_L1,            "ShotRecords"_L1,                             Access::Apply, Data::OnLoad},
    {"WhoGetsWhat"_L1,        "frmWhoGetsWhat"_L1,            "WhoGetsWhat"_L1,                             Access::Leave, Data::OnLoad},
    {"Marriage"_L1,           "frmMarriage"_L1,               "Marriage"_L1,                                Access::Apply, Data::OnLoad},
    {"Legal"_L1,              "frmLegal"_L1,                  "LegalInfo"_L1,                               Access::Apply, Data::OnLoad},
    {"Legal1"_L1,             "frmLegal"_L1,                  "LegalInfo"_L1,                               Access::Apply, Data::OnLoad},
    {"TheyOweYou"_L1,         "frmTheyOweYou"_L1,             "Obligations Where Type = 2"_L1,              Access::Apply, Data::OnShowMe},
    {"Loans"_L1,              "frmLoans"_L1,                  "Obligations Where Type = 3"_L1,              Access::Apply, Data::OnShowMe},
    {"Mortgages"_L1,          "frmMortgages"_L1,              "Obligations Where Type = 4"_L1,              Access::Apply, Data::OnShowMe},
    {"Alimony"_L1,            "frmAlimony"_L1,                "AlimonyChildSupport Where Type = 1"_L1,      Access::Apply, Data::OnShowMe},
    {"ChildSupport"_L1,       "frmChildSupport"_L1,           "AlimonyChildSupport Where Type = 2"_L1,      Access::Apply, Data::OnShowMe},
    {"SafeDeposit"_L1,        "frmSafetyDeposit"_L1,          "SafetyDeposit"_L1,                           Access::Apply, Data::OnLoad},
    {"SafeDeposit1"_L1,       "frmSafetyDeposit"_L1,          "SafetyDeposit"_L1,                           Access::Apply, Data::OnLoad},
    {"SocSec"_L1,             "frmSocialSecurity"_L1,         "SocialSecurity"_L1,                          Access::Apply, Data::OnLoad},
    {"CreditCards"_L1,        "frmCreditCards"_L1,            "CreditCards"_L1,                             Access::Apply, Data::OnLoad},
    {"Employment"_L1,         "frmEmployment"_L1,             "Employers"_L1,                               Access::Apply, Data::OnLoad},
    {"Organizations"_L1,      "frmOrganizations"_L1,          "Organizations"_L1,                           Access::Apply, Data::OnLoad},
    {"Checking"_L1,           "frmCheckingAcct"_L1,           "CheckingAccounts"_L1,                        Access::Apply, Data::OnLoad},
    {"Savings"_L1,            "frmSavingsAcct"_L1,            "SavingsAccounts"_L1,                         Access::Apply, Data::OnLoad},
    {"CDs"_L1,                "frmCDs"_L1,                    "CDs"_L1,                                     Access::Apply, Data::OnLoad},
    {"MoneyMarkets"_L1,       "frmMoneyMarkets"_L1,           "MoneyMarkets"_L1,                            Access::Apply, Data::OnLoad},
    {"InvestmentStrategy"_L1, "frmInvestmentStrategy"_L1,     "InvestmentStrategy"_L1,                      Access::Apply, Data::OnLoad},
    {"BrokerageAcct"_L1,      "frmBrokerageAcct"_L1,          "BrokerageAccount"_L1,                        Access::Apply, Data::OnLoad},
    {"Stocks"_L1,             "frmStocks"_L1,                 "Stocks"_L1,                                  Access::Apply, Data::OnLoad},
    {"Annuities"_L1,          "frmAnnuity"_L1,                "Annuities"_L1,                               Access::Apply, Data::OnLoad},
    {"Bonds"_L1,              "frmBonds"_L1,                  "Bonds"_L1,                                   Access::Apply, Data::OnLoad},
    {"MutualFunds"_L1,        "frmMutualFunds"_L1,            "MutualFunds"_L1,                             Access::Apply, Data::OnLoad},
    {"SavingsBonds"_L1,       "frmSavingsBonds"_L1,           "SavingsBonds"_L1,                            Access::Apply, Data::OnLoad},
    {"TreasuryNotes"_L1,      "frmTreasuryNotes"_L1,          "TreasuryNotes"_L1,                           Access::Apply, Data::OnLoad},
    {"OtherSecurities"_L1,    "frmOtherSecurities"_L1,        "OtherSecurities"_L1,                         Access::Apply, Data::OnLoad},
    {"Home"_L1,               "frmHomesOwned"_L1,             "HomeOwned"_L1,                               Access::Apply, Data::OnLoad},
    {"Renter"_L1,             "frmHomesRented"_L1,            "HomeRented"_L1,                              Access::Apply, Data::OnLoad},
    {"BusinessSite"_L1,       "frmBusinessSite"_L1,           "BusinessRealEstate"_L1,                      Access::Apply, Data::OnLoad},
    {"AgLand"_L1,             "frmAgSite"_L1,                 "AgRealEstate"_L1,                            Access::Apply, Data::OnLoad},
    {"Rentals"_L1,            "frmRentals"_L1,                "RentalRealEstate"_L1,                        Access::Apply, Data::OnLoad},
    {"Undeveloped"_L1,        "frmUndeveloped"_L1,            "UndevelopedRealEstate"_L1,                   Access::Apply, Data::OnLoad},
    {"OtherRealEstate"_L1,    "frmOtherRealEstate"_L1,        "OtherRealEstate"_L1,                         Access::Apply, Data::OnLoad},
    {"Antiques"_L1,           "frmAntiques"_L1,               "Antiques"_L1,                                Access::Apply, Data::OnLoad},
    {"Collectibles"_L1,       "frmCollectibles"_L1,           "Collectibles"_L1,                            Access::Apply, Data::OnLoad},
    {"Vehicles"_L1,           "frmVehicles"_L1,               "Vehicles"_L1,                                Access::Apply, Data::OnLoad},
    {"OtherProperty"_L1,      "frmOtherProperty"_L1,          "OtherProperty"_L1,                           Access::Apply, Data::OnLoad},
    {"Retirement"_L1,         "frmRetirementAccounts"_L1,     "RetirementAccounts"_L1,                      Access::Apply, Data::OnLoad},
    {"Medical"_L1,            "frmMedicalInsurance"_L1,       "MedicalInsurance"_L1,                        Access::Apply, Data::OnLoad},
    {"Life"_L1,               "frmLifeInsurance"_L1,          "LifeInsurance"_L1,                           Access::Apply, Data::OnLoad},
    {"Auto"_L1,               "frmAutoInsurance"_L1,          "AutoInsurance"_L1,                           Access::Apply, Data::OnLoad},
    {"HomeOwners"_L1,         "frmHomeInsurance"_L1,          "HomeInsurance"_L1,                           Access::Apply, Data::OnShowMe},
    {"Disability"_L1,         "frmDisabilityInsurance"_L1,    "DisabilityInsurance"_L1,                     Access::Apply, Data::OnLoad},
    {"Umbrella"_L1,           "frmUmbrellaInsurance"_L1,      "UmbrellaInsurance"_L1,                       Access::Apply, Data::OnLoad},
    {"Supplemental"_L1,       "frmSupplementalInsurance"_L1,  "SupplementalInsurance"_L1,                   Access::Apply, Data::OnLoad},
    {"OtherInsurance"_L1,     "frmOtherInsurance"_L1,         "OtherInsurance"_L1,                          Access::Apply, Data::OnLoad},
    {"Taxes"_L1,              "frmTaxes"_L1,                  "Taxes"_L1,                                   Access::Apply, Data::OnLoad},
    {"Contacts"_L1,           "frmContacts"_L1,               "Contacts"_L1,                                Access::Apply, Data::OnLoad},
};
// clang-format on

}  // namespace

const DispatchRow* dispatchRow(const QString& key) {
    const auto* found = std::ranges::find(rows, key, &DispatchRow::key);
    return found == std::end(rows) ? nullptr : found;
}

}  // namespace app
