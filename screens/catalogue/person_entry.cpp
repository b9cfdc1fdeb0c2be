#include "screens/catalogue/person_entry.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

constexpr Frame personFrames[] = {
    {""_L1, "LegalName"_L1},
    {"Birth Information"_L1, "BirthDate"_L1, "SocSecNumChange"_L1},
    {"Birth Certificate/Organ Donor Card Location"_L1, "BirthCertLoc"_L1},
    {"Comments"_L1, "Comment"_L1},
};

constexpr ScreenDefinition entry{
    .name = "frmKinbook"_L1,
    .table = "Person"_L1,
    .title = "Birth Information"_L1,
    .attachmentPrefix = "Kbk_"_L1,
    .addCaption = "&Add New Family Member"_L1,
    .saveAllHint = "Save all records to a file"_L1,
    .reportsLoadFailure = true,
    .soleCombo = true,
    .frames = personFrames,
};

}  // namespace

const ScreenDefinition& personEntry() {
    return entry;
}

}  // namespace screens
