#include "app/category_nodes.h"

using namespace Qt::StringLiterals;

namespace app {

namespace {

// clang-format off
constexpr CategoryNode nodes[] = {
    // key                         text                                       parent                        table
    {"r"_L1,                       "Kinbook"_L1,                              ""_L1,                        ""_L1},
    {"CategoryListHelp"_L1,        "Click Here for Help"_L1,                  "r"_L1,                       ""_L1},
    {"Family Member Information"_L1, "Family Member Information"_L1,            "r"_L1,                       ""_L1},
    {"Birth"_L1,                   "Birth Information"_L1,                    "Family Member Information"_L1, "Person"_L1},
    {"Education"_L1,               "Education"_L1,                            "Family Member Information"_L1, "Education"_L1},
    {"Marriage"_L1,                "Marriage"_L1,                             "Family Member Information"_L1, "Marriage"_L1},
    {"Memberships"_L1,             "Memberships"_L1,                          "Family Member Information"_L1, "Memberships"_L1},
    {"Military"_L1,                "Military"_L1,                             "Family Member Information"_L1, "MilitaryService"_L1},
    {"Parents"_L1,                 "Parents"_L1,                              "Family Member Information"_L1, "Parents"_L1},
    {"Passports"_L1,               "Passports/Citizenship"_L1,                "Family Member Information"_L1, "Passports"_L1},
    {"PINsPasswords"_L1,           "PINs And Passwords"_L1,                   "Family Member Information"_L1, "PIN_Password"_L1},
    {"Religious"_L1,               "Religious"_L1,                            "Family Member Information"_L1, "ReligiousPreference"_L1},
    {"Residences"_L1,              "Residences"_L1,                           "Family Member Information"_L1, "Residences"_L1},
    {"EmploymentInfo"_L1,          "Career Information"_L1,                   "r"_L1,                       ""_L1},
    {"Employment"_L1,              "Employment"_L1,                           "EmploymentInfo"_L1,          "Employers"_L1},
    {"Organizations"_L1,           "Professional Organizations"_L1,           "EmploymentInfo"_L1,          "Organizations"_L1},
    {"Financial Information"_L1,   "Financial Information"_L1,                "r"_L1,                       ""_L1},
    {"Assets"_L1,                  "Assets"_L1,                               "Financial Information"_L1,   ""_L1},
    {"Banking"_L1,                 "Banking"_L1,                              "Assets"_L1,                  ""_L1},
    {"CDs"_L1,                     "CDs"_L1,                                  "Banking"_L1,                 "CDs"_L1},
    {"Checking"_L1,                "Checking"_L1,                             "Banking"_L1,                 "CheckingAccounts"_L1},
    {"MoneyMarkets"_L1,            "Money Markets"_L1,                        "Banking"_L1,                 "MoneyMarkets"_L1},
    {"Savings"_L1,                 "Savings"_L1,                              "Banking"_L1,                 "SavingsAccounts"_L1},
    {"SafeDeposit"_L1,             "Safe Deposit Box"_L1,                     "Banking"_L1,                 "SafetyDeposit"_L1},
    {"Investments"_L1,             "Investments"_L1,                          "Assets"_L1,                  ""_L1},
    {"InvestmentStrategy"_L1,      "Investment Strategy"_L1,                  "Investments"_L1,             "InvestmentStrategy"_L1},
    {"Annuities"_L1,               "Annuities"_L1,                            "Investments"_L1,             "Annuities"_L1},
    {"Bonds"_L1,                   "Bonds"_L1,                                "Investments"_L1,             "Bonds"_L1},
    {"BrokerageAcct"_L1,           "Brokerage Account"_L1,                    "Investments"_L1,             "BrokerageAccount"_L1},
    {"MutualFunds"_L1,             "Mutual Funds"_L1,                         "Investments"_L1,             "MutualFunds"_L1},
    {"SavingsBonds"_L1,            "Savings Bonds"_L1,                        "Investments"_L1,             "SavingsBonds"_L1},
    {"Stocks"_L1,                  "Stocks"_L1,                               "Investments"_L1,             "Stocks"_L1},
    {"TreasuryNotes"_L1,           "Treasury Notes"_L1,                       "Investments"_L1,             "TreasuryNotes"_L1},
    {"OtherSecurities"_L1,         "Other Investments"_L1,                    "Investments"_L1,             "OtherSecurities"_L1},
    {"RealEstate"_L1,              "Real Estate"_L1,                          "Assets"_L1,                  ""_L1},
    {"AgLand"_L1,                  "Ag Land"_L1,                              "RealEstate"_L1,              "AgRealEstate"_L1},
    {"BusinessSite"_L1,            "Business Site"_L1,                        "RealEstate"_L1,              "BusinessRealEstate"_L1},
    {"Home"_L1,                    "Home(s)"_L1,                              "RealEstate"_L1,              "HomeOwned"_L1},
    {"Rentals"_L1,                 "Rentals"_L1,                              "RealEstate"_L1,              "HomeRented"_L1},
    {"Undeveloped"_L1,             "Undeveloped"_L1,                          "RealEstate"_L1,              "UndevelopedRealEstate"_L1},
    {"OtherRealEstate"_L1,         "Other Real Estate"_L1,                    "RealEstate"_L1,              "OtherRealEstate"_L1},
    {"Antiques"_L1,                "Antiques"_L1,                             "Assets"_L1,                  "Antiques"_L1},
    {"Collectibles"_L1,            "Collectibles"_L1,                         "Assets"_L1,                  "Collectibles"_L1},
    {"OtherProperty"_L1,           "Personal Property"_L1,                    "Assets"_L1,                  "OtherProperty"_L1},
    {"Retirement"_L1,              "Retirement Accounts"_L1,                  "Assets"_L1,                  "RetirementAccounts"_L1},
    {"Vehicles"_L1,                "Vehicles"_L1,                             "Assets"_L1,                  "Vehicles"_L1},
    {"AssetLiquidation"_L1,        "Asset Liquidation"_L1,                    "Financial Information"_L1,   "AssetLiquidation"_L1},
    {"Insurance"_L1,               "Insurance"_L1,                            "Financial Information"_L1,   ""_L1},
    {"Auto"_L1,                    "Auto"_L1,                                 "Insurance"_L1,               "AutoInsurance"_L1},
    {"Disability"_L1,              "Disability"_L1,                           "Insurance"_L1,               "DisabilityInsurance"_L1},
    {"HomeOwners"_L1,              "Home Owners"_L1,                          "Insurance"_L1,               "HomeInsurance"_L1},
    {"Life"_L1,                    "Life"_L1,                                 "Insurance"_L1,               "LifeInsurance"_L1},
    {"Medical"_L1,                 "Medical"_L1,                              "Insurance"_L1,               "MedicalInsurance"_L1},
    {"Supplemental"_L1,            "Supplemental"_L1,                         "Insurance"_L1,               "SupplementalInsurance"_L1},
    {"Umbrella"_L1,                "Umbrella"_L1,                             "Insurance"_L1,               "UmbrellaInsurance"_L1},
    {"OtherInsurance"_L1,          "Other Insurance"_L1,                      "Insurance"_L1,               "OtherInsurance"_L1},
    {"Legal"_L1,                   "Legal Matters"_L1,                        "Financial Information"_L1,   "LegalInfo"_L1},
    {"Obligations"_L1,             "Obligations"_L1,                          "Financial Information"_L1,   "Obligations"_L1},
    {"CreditCards"_L1,             "Credit Cards"_L1,                         "Obligations"_L1,             "CreditCards"_L1},
    {"Loans"_L1,                   "Loans"_L1,                                "Obligations"_L1,             "Obligations"_L1},
    {"Mortgages"_L1,               "Mortgages"_L1,                            "Obligations"_L1,             "Obligations"_L1},
    {"Renter"_L1,                  "Rent"_L1,                                 "Obligations"_L1,             "HomeRented"_L1},
    {"TheyOweYou"_L1,              "They Owe You"_L1,                         "Obligations"_L1,             "Obligations"_L1},
    {"Alimony"_L1,                 "Alimony"_L1,                              "Obligations"_L1,             "AlimonyChildSupport"_L1},
    {"ChildSupport"_L1,            "Child Support"_L1,                        "Obligations"_L1,             "AlimonyChildSupport"_L1},
    {"SocSec"_L1,                  "Social Security"_L1,                      "Financial Information"_L1,   "SocialSecurity"_L1},
    {"Taxes"_L1,                   "Taxes"_L1,                                "Financial Information"_L1,   "Taxes"_L1},
    {"Medical Information"_L1,     "Medical Information"_L1,                  "r"_L1,                       ""_L1},
    {"Doctors"_L1,                 "Doctors"_L1,                              "Medical Information"_L1,     "Doctors"_L1},
    {"MedicalLog"_L1,              "Medical Log"_L1,                          "Medical Information"_L1,     "MedicalLog"_L1},
    {"ShotRecords"_L1,             "Shot Records"_L1,                         "Medical Information"_L1,     "ShotRecords"_L1},
    {"In Case of Loss"_L1,         "In Case of Loss"_L1,                      "r"_L1,                       ""_L1},
    {"AssetLiquidation1"_L1,       "Asset Liquidation"_L1,                    "In Case of Loss"_L1,         "AssetLiquidation"_L1},
    {"Funeral"_L1,                 "Funeral"_L1,                              "In Case of Loss"_L1,         "Funeral"_L1},
    {"Legal1"_L1,                  "Legal Matters"_L1,                        "In Case of Loss"_L1,         "LegalInfo"_L1},
    {"SafeDeposit1"_L1,            "Safe Deposit Box"_L1,                     "In Case of Loss"_L1,         "SafetyDeposit"_L1},
    {"WhoGetsWhat"_L1,             "Who Gets What"_L1,                        "In Case of Loss"_L1,         "WhoGetsWhat"_L1},
    {"Security"_L1,                "Security"_L1,                             "r"_L1,                       ""_L1},
    {"SecurityInfo"_L1,            "Security Information"_L1,                 "Security"_L1,                ""_L1},
    {"LogIn"_L1,                   "Log In"_L1,                               "Security"_L1,                ""_L1},
    {"ChangeMainPassword"_L1,      "Change Main Password"_L1,                 "Security"_L1,                ""_L1},
    {"ChangePINPassword"_L1,       "Change PIN/Password Screen Password"_L1,  "Security"_L1,                ""_L1},
    {"Contacts"_L1,                "Address File/Contacts"_L1,                "r"_L1,                       "Contacts"_L1},
};
// clang-format on

}  // namespace

std::span<const CategoryNode> categoryNodes() {
    return nodes;
}

}  // namespace app
