#include "screens/catalogue/person_entry.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

constexpr ComboColumn combos[] = {{-1, "BirthState"_L1, 5}};
constexpr DateColumn dates[] = {{1, "BirthDate"_L1}};
constexpr FieldCheck checks[] = {{1, Check::Date}};
constexpr Frame frames[] = {
    {0, ""_L1, {0, 0}, {}},
    {1, "Birth Information"_L1, {1, 7}, {0, 5}},
    {2, "Birth Certificate/Organ Donor Card Location"_L1, {8, 8}, {}},
    {3, "Comments"_L1, {9, 9}, {}},
};

constexpr ScreenDefinition entry{
    .name = "frmKinbook"_L1,
    .table = "Person"_L1,
    .recordset = "adoPrimaryRS"_L1,
    .title = "Birth Information"_L1,
    .attachmentPrefix = "Kbk_"_L1,
    .addCaption = "&Add New Family Member"_L1,
    .saveAllHint = "Save all records to a file"_L1,
    .reportsLoadFailure = true,
    .combos = combos,
    .dates = dates,
    .checks = checks,
    .frames = frames,
    .firstBox = 0,
};

}  // namespace

const ScreenDefinition& personEntry() {
    return entry;
}

}  // namespace screens
