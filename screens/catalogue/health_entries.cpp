#include "screens/catalogue/groups.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

// clang-format off

constexpr Frame shotRecordsFrames[] = {
    {"Diseases"_L1, {}, "ChickenPox"_L1},
    {"Shot Record Dates"_L1, "HIBDate"_L1},
    {"Comment/Shot Record Location/Other Illnesses"_L1, "Comment"_L1},
};
constexpr ScreenDefinition shotRecords{
    .name = "frmShotRecords"_L1,
    .table = "ShotRecords"_L1,
    .title = "Shot Records/Medical History Of -- "_L1,
    .attachmentPrefix = "SRM_"_L1,
    .addCaption = "&Add New Medical Info"_L1,
    .ownerLabel = "Person:"_L1,
    .saveEnding = "shot records/medical history information can be created."_L1,
    .deleteNoun = "shot records/medical history information?"_L1,
    .reportsLoadFailure = true,
    .frames = shotRecordsFrames,
};

constexpr ScreenDefinition healthGroup[] = {
    shotRecords,
};

// clang-format on

}  // namespace

std::span<const ScreenDefinition> healthEntries() {
    return healthGroup;
}

}  // namespace screens
