#include "app/category_nodes.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace app {

namespace {

/// Counted over all rows, whoever is selected: they belong to nobody in particular.
constexpr Picture ofEverybody{.memberColumn = {}};
/// The rows are the members themselves.
constexpr Picture ofTheMember{.memberColumn = "ID"_L1};
/// Nothing is counted; filled as long as the node is the selected one.
constexpr Picture whileSelected{.followsSelection = true};

constexpr Picture by(QLatin1StringView table) {
    return {.table = table};
}

// clang-format off
constexpr CategoryNode nodes[] = {
    // key                            text                                         parent                           opens                           counts                                        picture
    {"r"_L1,                          "Kinbook"_L1,                                ""_L1},
    {"CategoryListHelp"_L1,           "Click Here for Help"_L1,                    "r"_L1,                          "frmCategoryListHelp"_L1},
    {"Family Member Information"_L1,  "Family Member Information"_L1,              "r"_L1},
    {"Birth"_L1,                      "Birth Information"_L1,                      "Family Member Information"_L1,  "frmKinbook"_L1,                "Person"_L1,                                  ofTheMember},
    {"Education"_L1,                  "Education"_L1,                              "Family Member Information"_L1,  "frmEducation"_L1,              "Education"_L1},
    {"Marriage"_L1,                   "Marriage"_L1,                               "Family Member Information"_L1,  "frmMarriage"_L1,               "Marriage"_L1},
    {"Memberships"_L1,                "Memberships"_L1,                            "Family Member Information"_L1,  "frmMemberships"_L1,            "Memberships"_L1},
    {"Military"_L1,                   "Military"_L1,                               "Family Member Information"_L1,  "frmMilitary"_L1,               "MilitaryService"_L1},
    {"Parents"_L1,                    "Parents"_L1,                                "Family Member Information"_L1,  "frmParents"_L1,                "Parents"_L1},
    {"Passports"_L1,                  "Passports/Citizenship"_L1,                  "Family Member Information"_L1,  "frmPassport"_L1,               "Passports"_L1},
    {"PINsPasswords"_L1,              "PINs And Passwords"_L1,                     "Family Member Information"_L1,  "frmPinsAndPasswords"_L1,       ""_L1,                                        by("PIN_Password"_L1)},
    {"Religious"_L1,                  "Religious"_L1,                              "Family Member Information"_L1,  "frmReligion"_L1,               "ReligiousPreference"_L1},
    {"Residences"_L1,                 "Residences"_L1,                             "Family Member Information"_L1,  "frmResidences"_L1,             "Residences"_L1},
    {"EmploymentInfo"_L1,             "Career Information"_L1,                     "r"_L1},
    {"Employment"_L1,                 "Employment"_L1,                             "EmploymentInfo"_L1,             "frmEmployment"_L1,             "Employers"_L1},
    {"Organizations"_L1,              "Professional Organizations"_L1,             "EmploymentInfo"_L1,             "frmOrganizations"_L1,          "Organizations"_L1},
    {"Financial Information"_L1,      "Financial Information"_L1,                  "r"_L1},
    {"Assets"_L1,                     "Assets"_L1,                                 "Financial Information"_L1},
    {"Banking"_L1,                    "Banking"_L1,                                "Assets"_L1},
    {"CDs"_L1,                        "CDs"_L1,                                    "Banking"_L1,                    "frmCDs"_L1,                    "CDs"_L1},
    {"Checking"_L1,                   "Checking"_L1,                               "Banking"_L1,                    "frmCheckingAcct"_L1,           "CheckingAccounts"_L1},
    {"MoneyMarkets"_L1,               "Money Markets"_L1,                          "Banking"_L1,                    "frmMoneyMarkets"_L1,           "MoneyMarkets"_L1},
    {"Savings"_L1,                    "Savings"_L1,                                "Banking"_L1,                    "frmSavingsAcct"_L1,            "SavingsAccounts"_L1},
    {"SafeDeposit"_L1,                "Safe Deposit Box"_L1,                       "Banking"_L1,                    "frmSafetyDeposit"_L1,          "SafetyDeposit"_L1},
    {"Investments"_L1,                "Investments"_L1,                            "Assets"_L1},
    {"InvestmentStrategy"_L1,         "Investment Strategy"_L1,                    "Investments"_L1,                "frmInvestmentStrategy"_L1,     "InvestmentStrategy"_L1},
    {"Annuities"_L1,                  "Annuities"_L1,                              "Investments"_L1,                "frmAnnuity"_L1,                "Annuities"_L1},
    {"Bonds"_L1,                      "Bonds"_L1,                                  "Investments"_L1,                "frmBonds"_L1,                  "Bonds"_L1},
    {"BrokerageAcct"_L1,              "Brokerage Account"_L1,                      "Investments"_L1,                "frmBrokerageAcct"_L1,          "BrokerageAccount"_L1},
    {"MutualFunds"_L1,                "Mutual Funds"_L1,                           "Investments"_L1,                "frmMutualFunds"_L1,            "MutualFunds"_L1},
    {"SavingsBonds"_L1,               "Savings Bonds"_L1,                          "Investments"_L1,                "frmSavingsBonds"_L1,           "SavingsBonds"_L1},
    {"Stocks"_L1,                     "Stocks"_L1,                                 "Investments"_L1,                "frmStocks"_L1,                 "Stocks"_L1},
    {"TreasuryNotes"_L1,              "Treasury Notes"_L1,                         "Investments"_L1,                "frmTreasuryNotes"_L1,          "TreasuryNotes"_L1},
    {"OtherSecurities"_L1,            "Other Investments"_L1,                      "Investments"_L1,                "frmOtherSecurities"_L1,        "OtherSecurities"_L1},
    {"RealEstate"_L1,                 "Real Estate"_L1,                            "Assets"_L1},
    {"AgLand"_L1,                     "Ag Land"_L1,                                "RealEstate"_L1,                 "frmAgSite"_L1,                 "AgRealEstate"_L1},
    {"BusinessSite"_L1,               "Business Site"_L1,                          "RealEstate"_L1,                 "frmBusinessSite"_L1,           "BusinessRealEstate"_L1},
    {"Home"_L1,                       "Home(s)"_L1,                                "RealEstate"_L1,                 "frmHomesOwned"_L1,             "HomeOwned"_L1},
    {"Rentals"_L1,                    "Rentals"_L1,                                "RealEstate"_L1,                 "frmRentals"_L1,                "RentalRealEstate"_L1,                        by("HomeRented"_L1)},
    {"Undeveloped"_L1,                "Undeveloped"_L1,                            "RealEstate"_L1,                 "frmUndeveloped"_L1,            "UndevelopedRealEstate"_L1},
    {"OtherRealEstate"_L1,            "Other Real Estate"_L1,                      "RealEstate"_L1,                 "frmOtherRealEstate"_L1,        "OtherRealEstate"_L1},
    {"Antiques"_L1,                   "Antiques"_L1,                               "Assets"_L1,                     "frmAntiques"_L1,               "Antiques"_L1},
    {"Collectibles"_L1,               "Collectibles"_L1,                           "Assets"_L1,                     "frmCollectibles"_L1,           "Collectibles"_L1},
    {"OtherProperty"_L1,              "Personal Property"_L1,                      "Assets"_L1,                     "frmOtherProperty"_L1,          "OtherProperty"_L1},
    {"Retirement"_L1,                 "Retirement Accounts"_L1,                    "Assets"_L1,                     "frmRetirementAccounts"_L1,     "RetirementAccounts"_L1},
    {"Vehicles"_L1,                   "Vehicles"_L1,                               "Assets"_L1,                     "frmVehicles"_L1,               "Vehicles"_L1},
    {"AssetLiquidation"_L1,           "Asset Liquidation"_L1,                      "Financial Information"_L1,      "frmAssetLiquidation"_L1,       "AssetLiquidation"_L1,                        ofEverybody},
    {"Insurance"_L1,                  "Insurance"_L1,                              "Financial Information"_L1},
    {"Auto"_L1,                       "Auto"_L1,                                   "Insurance"_L1,                  "frmAutoInsurance"_L1,          "AutoInsurance"_L1},
    {"Disability"_L1,                 "Disability"_L1,                             "Insurance"_L1,                  "frmDisabilityInsurance"_L1,    "DisabilityInsurance"_L1},
    {"HomeOwners"_L1,                 "Home Owners"_L1,                            "Insurance"_L1,                  "frmHomeInsurance"_L1,          "HomeInsurance"_L1},
    {"Life"_L1,                       "Life"_L1,                                   "Insurance"_L1,                  "frmLifeInsurance"_L1,          "LifeInsurance"_L1},
    {"Medical"_L1,                    "Medical"_L1,                                "Insurance"_L1,                  "frmMedicalInsurance"_L1,       "MedicalInsurance"_L1},
    {"Supplemental"_L1,               "Supplemental"_L1,                           "Insurance"_L1,                  "frmSupplementalInsurance"_L1,  "SupplementalInsurance"_L1},
    {"Umbrella"_L1,                   "Umbrella"_L1,                               "Insurance"_L1,                  "frmUmbrellaInsurance"_L1,      "UmbrellaInsurance"_L1},
    {"OtherInsurance"_L1,             "Other Insurance"_L1,                        "Insurance"_L1,                  "frmOtherInsurance"_L1,         "OtherInsurance"_L1},
    {"Legal"_L1,                      "Legal Matters"_L1,                          "Financial Information"_L1,      "frmLegal"_L1,                  "LegalInfo"_L1},
    {"Obligations"_L1,                "Obligations"_L1,                            "Financial Information"_L1,      ""_L1,                          ""_L1,                                        by("Obligations"_L1)},
    {"CreditCards"_L1,                "Credit Cards"_L1,                           "Obligations"_L1,                "frmCreditCards"_L1,            "CreditCards"_L1},
    {"Loans"_L1,                      "Loans"_L1,                                  "Obligations"_L1,                "frmLoans"_L1,                  "Obligations Where Type = 3"_L1},
    {"Mortgages"_L1,                  "Mortgages"_L1,                              "Obligations"_L1,                "frmMortgages"_L1,              "Obligations Where Type = 4"_L1},
    {"Renter"_L1,                     "Rent"_L1,                                   "Obligations"_L1,                "frmHomesRented"_L1,            "HomeRented"_L1},
    {"TheyOweYou"_L1,                 "They Owe You"_L1,                           "Obligations"_L1,                "frmTheyOweYou"_L1,             "Obligations Where Type = 2"_L1},
    {"Alimony"_L1,                    "Alimony"_L1,                                "Obligations"_L1,                "frmAlimony"_L1,                "AlimonyChildSupport Where Type = 1"_L1},
    {"ChildSupport"_L1,               "Child Support"_L1,                          "Obligations"_L1,                "frmChildSupport"_L1,           "AlimonyChildSupport Where Type = 2"_L1},
    {"SocSec"_L1,                     "Social Security"_L1,                        "Financial Information"_L1,      "frmSocialSecurity"_L1,         "SocialSecurity"_L1},
    {"Taxes"_L1,                      "Taxes"_L1,                                  "Financial Information"_L1,      "frmTaxes"_L1,                  "Taxes"_L1},
    {"Medical Information"_L1,        "Medical Information"_L1,                    "r"_L1},
    {"Doctors"_L1,                    "Doctors"_L1,                                "Medical Information"_L1,        "frmDoctors"_L1,                "Doctors"_L1,                                 ofEverybody},
    {"MedicalLog"_L1,                 "Medical Log"_L1,                            "Medical Information"_L1,        "frmMedicalLog"_L1,             "MedicalLog"_L1},
    {"ShotRecords"_L1,                "Shot Records"_L1,                           "Medical Information"_L1,        "frmShotRecords"_L1,            "ShotRecords"_L1},
    {"In Case of Loss"_L1,            "In Case of Loss"_L1,                        "r"_L1},
    {"AssetLiquidation1"_L1,          "Asset Liquidation"_L1,                      "In Case of Loss"_L1,            "frmAssetLiquidation"_L1,       "AssetLiquidation"_L1,                        ofEverybody},
    {"Funeral"_L1,                    "Funeral"_L1,                                "In Case of Loss"_L1,            "frmFuneral"_L1,                "Funeral"_L1},
    {"Legal1"_L1,                     "Legal Matters"_L1,                          "In Case of Loss"_L1,            "frmLegal"_L1,                  "LegalInfo"_L1},
    {"SafeDeposit1"_L1,               "Safe Deposit Box"_L1,                       "In Case of Loss"_L1,            "frmSafetyDeposit"_L1,          "SafetyDeposit"_L1},
    {"WhoGetsWhat"_L1,                "Who Gets What"_L1,                          "In Case of Loss"_L1,            "frmWhoGetsWhat"_L1,            "WhoGetsWhat"_L1,                             ofEverybody},
    {"Security"_L1,                   "Security"_L1,                               "r"_L1},
    {"SecurityInfo"_L1,               "Security Information"_L1,                   "Security"_L1,                   "frmSecurityInfo"_L1,           ""_L1,                                        whileSelected},
    {"LogIn"_L1,                      "Log In"_L1,                                 "Security"_L1,                   "frmLogin"_L1,                  ""_L1,                                        whileSelected},
    {"ChangeMainPassword"_L1,         "Change Main Password"_L1,                   "Security"_L1,                   "frmChangePassword"_L1,         ""_L1,                                        whileSelected},
    {"ChangePINPassword"_L1,          "Change PIN/Password Screen Password"_L1,    "Security"_L1,                   "frmChangePINPassword"_L1,      ""_L1,                                        whileSelected},
    {"Contacts"_L1,                   "Address File/Contacts"_L1,                  "r"_L1,                          "frmContacts"_L1,               "Contacts"_L1,                                ofEverybody},
};
// clang-format on

}  // namespace

QLatin1StringView CategoryNode::table() const {
    if (!picture.table.isEmpty()) return picture.table;
    const auto end = std::ranges::find(counts, ' ');
    return counts.first(std::distance(counts.begin(), end));
}

std::span<const CategoryNode> categoryNodes() {
    return nodes;
}

}  // namespace app
