#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr Frame homeInsuranceFrames[] = {
    {"Family Member"_L1},
    {"Home Owner's Insurance Information"_L1, "Coverage"_L1},
    {"Comment/Document Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition homeInsurance{
    .name = "frmHomeInsurance"_L1,
    .table = "HomeInsurance"_L1,
    .title = "Home Owner's Insurance Of -- "_L1,
    .attachmentPrefix = "Hin_"_L1,
    .addCaption = "&Add New Home Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "home owner's insurance information can be created."_L1,
    .deleteNoun = "home owner's insurance information?"_L1,
    .frames = homeInsuranceFrames,
};

// The ending names another subject than the screen's, and is meant to.
constexpr Frame autoInsuranceFrames[] = {
    {"Family Member"_L1},
    {"Auto Insurance Information"_L1, "Coverage"_L1, "PremiumDiscounts"_L1},
    {"Covered Drivers"_L1, "DriversCovered"_L1},
    {"Comment/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition autoInsurance{
    .name = "frmAutoInsurance"_L1,
    .table = "AutoInsurance"_L1,
    .title = "Auto Insurance Information Of -- "_L1,
    .attachmentPrefix = "Ain_"_L1,
    .addCaption = "&Add New Auto Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "life insurance information can be created."_L1,
    .deleteNoun = "auto insurance information?"_L1,
    .frames = autoInsuranceFrames,
};

constexpr Frame supplementalInsuranceFrames[] = {
    {"Family Member"_L1},
    {"Supplemental Insurance Information"_L1, "PolicyType"_L1},
    {"Comment/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition supplementalInsurance{
    .name = "frmSupplementalInsurance"_L1,
    .table = "SupplementalInsurance"_L1,
    .title = "Supplemental Insurance Information Of -- "_L1,
    .attachmentPrefix = "Sup_"_L1,
    .addCaption = "&Add New Supplemental Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "supplemental insurance information can be created."_L1,
    .deleteNoun = "supplemental insurance information?"_L1,
    .frames = supplementalInsuranceFrames,
};

constexpr Frame disabilityInsuranceFrames[] = {
    {"Family Member"_L1},
    {"Disability Insurance Information"_L1, "Coverage"_L1},
    {"Comment/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition disabilityInsurance{
    .name = "frmDisabilityInsurance"_L1,
    .table = "DisabilityInsurance"_L1,
    .title = "Disability Insurance Information Of -- "_L1,
    .attachmentPrefix = "Din_"_L1,
    .addCaption = "&Add New Disability Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "disability insurance information can be created."_L1,
    .deleteNoun = "disability insurance information?"_L1,
    .frames = disabilityInsuranceFrames,
};

constexpr Frame umbrellaInsuranceFrames[] = {
    {"Family Member"_L1},
    {"Umbrella Insurance Information"_L1, "Coverage"_L1},
    {"Comment/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition umbrellaInsurance{
    .name = "frmUmbrellaInsurance"_L1,
    .table = "UmbrellaInsurance"_L1,
    .title = "Umbrella Insurance Information Of -- "_L1,
    .attachmentPrefix = "Uin_"_L1,
    .addCaption = "&Add New Umbrella Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "umbrella insurance information can be created."_L1,
    .deleteNoun = "umbrella insurance information?"_L1,
    .frames = umbrellaInsuranceFrames,
};

constexpr Frame lifeInsuranceFrames[] = {
    {"Family Member"_L1},
    {"Life Insurance Information"_L1, "PolicyType"_L1},
    {"Comment/Documents Location/Contingent Beneficiary"_L1, "Comment"_L1},
};
constexpr ScreenDefinition lifeInsurance{
    .name = "frmLifeInsurance"_L1,
    .table = "LifeInsurance"_L1,
    .title = "Life Insurance Information Of -- "_L1,
    .attachmentPrefix = "Lin_"_L1,
    .addCaption = "&Add New Life Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "life insurance information can be created."_L1,
    .deleteNoun = "life insurance information?"_L1,
    .frames = lifeInsuranceFrames,
};

constexpr Frame medicalInsuranceFrames[] = {
    {"Family Member"_L1},
    {"Medical Insurance Information"_L1, "PolicyType"_L1, "LifeInsurance"_L1},
    {"Comment/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition medicalInsurance{
    .name = "frmMedicalInsurance"_L1,
    .table = "MedicalInsurance"_L1,
    .title = "Medical Insurance Information Of -- "_L1,
    .attachmentPrefix = "Min_"_L1,
    .addCaption = "&Add New Medical Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "medical insurance information can be created."_L1,
    .deleteNoun = "medical insurance information?"_L1,
    .frames = medicalInsuranceFrames,
};

constexpr Frame otherInsuranceFrames[] = {
    {"Family Member"_L1},
    {"Other Insurance Information"_L1, "PolicyType"_L1, "LifeInsurance"_L1},
    {"Comment/Documents Location"_L1, "Comment"_L1},
};
constexpr ScreenDefinition otherInsurance{
    .name = "frmOtherInsurance"_L1,
    .table = "OtherInsurance"_L1,
    .title = "Other Insurance Information Of -- "_L1,
    .attachmentPrefix = "Oin_"_L1,
    .addCaption = "&Add New Other Insurance"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "other insurance information can be created."_L1,
    .deleteNoun = "other insurance information?"_L1,
    .unchecked = "Deductible"_L1,
    .frames = otherInsuranceFrames,
};

constexpr ScreenDefinition insuranceGroup[] = {
    homeInsurance,
    autoInsurance,
    supplementalInsurance,
    disabilityInsurance,
    umbrellaInsurance,
    lifeInsurance,
    medicalInsurance,
    otherInsurance,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> insuranceEntries() {
    return insuranceGroup;
}

}  // namespace screens
