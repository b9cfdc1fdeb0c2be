#include "app/dispatch_table.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace app {

namespace {

// clang-format off
constexpr DispatchRow rows[] = {
    // key                    window                          rows that are counted
    {"Birth"_L1,              "frmKinbook"_L1,                "Person"_L1,                                  Access::Leave},
    {"Residences"_L1,         "frmResidences"_L1,             "Residences"_L1,                              Access::Apply},
    {"Parents"_L1,            "frmParents"_L1,                "Parents"_L1,                                 Access::Apply},
    {"Passports"_L1,          "frmPassport"_L1,               "Passports"_L1,                               Access::Apply},
    {"Doctors"_L1,            "frmDoctors"_L1,                "Doctors"_L1,                                 Access::Apply},
    {"MedicalLog"_L1,         "frmMedicalLog"_L1,             "MedicalLog"_L1,                              Access::Leave},
    {"Religious"_L1,          "frmReligion"_L1,               "ReligiousPreference"_L1,                     Access::Apply},
    {"Education"_L1,          "frmEducation"_L1,              "Education"_L1,                               Access::Apply},
    {"Military"_L1,           "frmMilitary"_L1,               "MilitaryService"_L1,                         Access::Apply},
    {"Memberships"_L1,        "frmMemberships"_L1,            "Memberships"_L1,                             Access::Apply},
    {"Funeral"_L1,            "frmFuneral"_L1,                "Funeral"_L1,                                 Access::Apply},
    {"AssetLiquidation"_L1,   "frmAssetLiquidation"_L1,       "AssetLiquidation"_L1,                        Access::Leave},
    {"AssetLiquidation1"_L1,  "frmAssetLiquidation"_L1,       "AssetLiquidation"_L1,                        Access::Leave},
    {"ShotRecords"_L1,        "frmShotRecords"_L1,            "ShotRecords"_L1,                             Access::Apply},
    {"WhoGetsWhat"_L1,        "frmWhoGetsWhat"_L1,            "WhoGetsWhat"_L1,                             Access::Leave},
    {"Marriage"_L1,           "frmMarriage"_L1,               "Marriage"_L1,                                Access::Apply},
    {"Legal"_L1,              "frmLegal"_L1,                  "LegalInfo"_L1,                               Access::Apply},
    {"Legal1"_L1,             "frmLegal"_L1,                  "LegalInfo"_L1,                               Access::Apply},
    {"TheyOweYou"_L1,         "frmTheyOweYou"_L1,             "Obligations Where Type = 2"_L1,              Access::Apply},
    {"Loans"_L1,              "frmLoans"_L1,                  "Obligations Where Type = 3"_L1,              Access::Apply},
    {"Mortgages"_L1,          "frmMortgages"_L1,              "Obligations Where Type = 4"_L1,              Access::Apply},
    {"Alimony"_L1,            "frmAlimony"_L1,                "AlimonyChildSupport Where Type = 1"_L1,      Access::Apply},
    {"ChildSupport"_L1,       "frmChildSupport"_L1,           "AlimonyChildSupport Where Type = 2"_L1,      Access::Apply},
    {"SafeDeposit"_L1,        "frmSafetyDeposit"_L1,          "SafetyDeposit"_L1,                           Access::Apply},
    {"SafeDeposit1"_L1,       "frmSafetyDeposit"_L1,          "SafetyDeposit"_L1,                           Access::Apply},
    {"SocSec"_L1,             "frmSocialSecurity"_L1,         "SocialSecurity"_L1,                          Access::Apply},
    {"CreditCards"_L1,        "frmCreditCards"_L1,            "CreditCards"_L1,                             Access::Apply},
    {"Employment"_L1,         "frmEmployment"_L1,             "Employers"_L1,                               Access::Apply},
    {"Organizations"_L1,      "frmOrganizations"_L1,          "Organizations"_L1,                           Access::Apply},
    {"Checking"_L1,           "frmCheckingAcct"_L1,           "CheckingAccounts"_L1,                        Access::Apply},
    {"Savings"_L1,            "frmSavingsAcct"_L1,            "SavingsAccounts"_L1,                         Access::Apply},
    {"CDs"_L1,                "frmCDs"_L1,                    "CDs"_L1,                                     Access::Apply},
    {"MoneyMarkets"_L1,       "frmMoneyMarkets"_L1,           "MoneyMarkets"_L1,                            Access::Apply},
    {"InvestmentStrategy"_L1, "frmInvestmentStrategy"_L1,     "InvestmentStrategy"_L1,                      Access::Apply},
    {"BrokerageAcct"_L1,      "frmBrokerageAcct"_L1,          "BrokerageAccount"_L1,                        Access::Apply},
    {"Stocks"_L1,             "frmStocks"_L1,                 "Stocks"_L1,                                  Access::Apply},
    {"Annuities"_L1,          "frmAnnuity"_L1,                "Annuities"_L1,                               Access::Apply},
    {"Bonds"_L1,              "frmBonds"_L1,                  "Bonds"_L1,                                   Access::Apply},
    {"MutualFunds"_L1,        "frmMutualFunds"_L1,            "MutualFunds"_L1,                             Access::Apply},
    {"SavingsBonds"_L1,       "frmSavingsBonds"_L1,           "SavingsBonds"_L1,                            Access::Apply},
    {"TreasuryNotes"_L1,      "frmTreasuryNotes"_L1,          "TreasuryNotes"_L1,                           Access::Apply},
    {"OtherSecurities"_L1,    "frmOtherSecurities"_L1,        "OtherSecurities"_L1,                         Access::Apply},
    {"Home"_L1,               "frmHomesOwned"_L1,             "HomeOwned"_L1,                               Access::Apply},
    {"Renter"_L1,             "frmHomesRented"_L1,            "HomeRented"_L1,                              Access::Apply},
    {"BusinessSite"_L1,       "frmBusinessSite"_L1,           "BusinessRealEstate"_L1,                      Access::Apply},
    {"AgLand"_L1,             "frmAgSite"_L1,                 "AgRealEstate"_L1,                            Access::Apply},
    {"Rentals"_L1,            "frmRentals"_L1,                "RentalRealEstate"_L1,                        Access::Apply},
    {"Undeveloped"_L1,        "frmUndeveloped"_L1,            "UndevelopedRealEstate"_L1,                   Access::Apply},
    {"OtherRealEstate"_L1,    "frmOtherRealEstate"_L1,        "OtherRealEstate"_L1,                         Access::Apply},
    {"Antiques"_L1,           "frmAntiques"_L1,               "Antiques"_L1,                                Access::Apply},
    {"Collectibles"_L1,       "frmCollectibles"_L1,           "Collectibles"_L1,                            Access::Apply},
    {"Vehicles"_L1,           "frmVehicles"_L1,               "Vehicles"_L1,                                Access::Apply},
    {"OtherProperty"_L1,      "frmOtherProperty"_L1,          "OtherProperty"_L1,                           Access::Apply},
    {"Retirement"_L1,         "frmRetirementAccounts"_L1,     "RetirementAccounts"_L1,                      Access::Apply},
    {"Medical"_L1,            "frmMedicalInsurance"_L1,       "MedicalInsurance"_L1,                        Access::Apply},
    {"Life"_L1,               "frmLifeInsurance"_L1,          "LifeInsurance"_L1,                           Access::Apply},
    {"Auto"_L1,               "frmAutoInsurance"_L1,          "AutoInsurance"_L1,                           Access::Apply},
    {"HomeOwners"_L1,         "frmHomeInsurance"_L1,          "HomeInsurance"_L1,                           Access::Apply},
    {"Disability"_L1,         "frmDisabilityInsurance"_L1,    "DisabilityInsurance"_L1,                     Access::Apply},
    {"Umbrella"_L1,           "frmUmbrellaInsurance"_L1,      "UmbrellaInsurance"_L1,                       Access::Apply},
    {"Supplemental"_L1,       "frmSupplementalInsurance"_L1,  "SupplementalInsurance"_L1,                   Access::Apply},
    {"OtherInsurance"_L1,     "frmOtherInsurance"_L1,         "OtherInsurance"_L1,                          Access::Apply},
    {"Taxes"_L1,              "frmTaxes"_L1,                  "Taxes"_L1,                                   Access::Apply},
    {"Contacts"_L1,           "frmContacts"_L1,               "Contacts"_L1,                                Access::Apply},
};
// clang-format on

}  // namespace

const DispatchRow* dispatchRow(const QString& key) {
    const auto* found = std::ranges::find(rows, key, &DispatchRow::key);
    return found == std::end(rows) ? nullptr : found;
}

}  // namespace app
