#include "screens/catalogue/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "data/tables.h"
#include "screens/catalogue/person_entry.h"
#include "screens/catalogue/shown_columns.h"

using namespace Qt::StringLiterals;

namespace screens {

/// What a failed case says of its screen.
void PrintTo(const ScreenDefinition& screen, std::ostream* out) {
    *out << QString(screen.name).toStdString();
}

namespace {

constexpr int mostControls = 64;

std::vector<ScreenDefinition> allScreens() {
    std::vector<ScreenDefinition> all{personEntry()};
    for (const auto group : {ownedScreens(), referenceScreens(), childScreens()}) {
        all.insert(all.end(), group.begin(), group.end());
    }
    return all;
}

/// One screen's numbered fields, as a window numbers them.
struct Fields {
    std::map<int, data::Column> boxes;
    std::vector<data::Column> checks;

    explicit Fields(const ScreenDefinition& screen) {
        int next = screen.firstBox;
        for (const data::Column& column : shownColumns(screen)) {
            if (column.kind == data::FieldKind::YesNo) {
                checks.push_back(column);
            } else {
                boxes.emplace(next++, column);
            }
        }
    }
};

class Catalogue : public testing::TestWithParam<ScreenDefinition> {
protected:
    const ScreenDefinition& screen_ = GetParam();
    Fields fields_{screen_};

    [[nodiscard]] data::Column box(int index) const {
        const auto found = fields_.boxes.find(index);
        return found == fields_.boxes.end() ? data::Column{} : found->second;
    }
    [[nodiscard]] bool hasOwner() const { return screen_.firstBox == 1; }
};

std::string nameOf(const testing::TestParamInfo<ScreenDefinition>& info) {
    return QString(info.param.name).toStdString();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Screens, Catalogue, testing::ValuesIn(allScreens()), nameOf);

TEST_P(Catalogue, EveryFieldHasItsLabel) {
    EXPECT_EQ(hasOwner(), !screen_.ownerLabel.isEmpty());
    for (const data::Column& column : shownColumns(screen_)) {
        EXPECT_FALSE(column.label.isEmpty()) << QString(column.name).toStdString();
    }
}

TEST_P(Catalogue, DatesAndCombosAreWrittenIntoTheColumnOfTheirBox) {
    for (const DateColumn& date : screen_.dates) {
        EXPECT_EQ(box(date.box).name, date.column);
        EXPECT_EQ(box(date.box).kind, data::FieldKind::Date);
    }
    int dates = 0;
    int combos = 0;
    for (const auto& [index, column] : fields_.boxes) {
        dates += column.kind == data::FieldKind::Date;
        combos += column.shownIn != data::ShownIn::Box;
    }
    EXPECT_EQ(dates, static_cast<int>(screen_.dates.size()));
    EXPECT_EQ(combos, static_cast<int>(screen_.combos.size()));
    for (const ComboColumn& combo : screen_.combos) {
        EXPECT_EQ(box(combo.shadow).name, combo.column);
        EXPECT_NE(box(combo.shadow).shownIn, data::ShownIn::Box);
        EXPECT_EQ(box(combo.shadow).shownIn == data::ShownIn::StatusCombo,
                  !screen_.statusItems.empty() && combo.combo == 1);
    }
}

TEST_P(Catalogue, ChecksFitWhatTheBoxesHold) {
    std::set<int> seen;
    for (const FieldCheck& check : screen_.checks) {
        EXPECT_TRUE(seen.insert(check.box).second) << check.box;
        const data::FieldKind kind = check.check == Check::Date ? data::FieldKind::Date : data::FieldKind::Number;
        EXPECT_EQ(box(check.box).kind, kind) << check.box;
    }
    const auto rate = std::ranges::find(fields_.boxes, "0.000"_L1, [](const auto& each) { return each.second.format; });
    EXPECT_EQ(screen_.rateBox, rate == fields_.boxes.end() ? std::nullopt : std::optional(rate->first));
}

TEST_P(Catalogue, EveryControlStandsInOneFrameAndReadingDownIsReadingByIndex) {
    std::vector<int> boxes;
    std::vector<int> checks;
    std::set<int> indices;
    for (const Frame& frame : screen_.frames) {
        EXPECT_GT(frame.boxes.count() + frame.checks.count(), 0) << QString(frame.caption).toStdString();
        EXPECT_TRUE(indices.insert(frame.index).second);
        for (int i = 0; i < mostControls; ++i) {
            if (frame.boxes.holds(i)) boxes.push_back(i);
            if (frame.checks.holds(i)) checks.push_back(i);
        }
    }
    std::vector<int> allBoxes;
    if (hasOwner()) allBoxes.push_back(0);
    for (const auto& [index, column] : fields_.boxes)
        allBoxes.push_back(index);
    std::vector<int> allChecks;
    for (int i = 0; i < static_cast<int>(fields_.checks.size()); ++i)
        allChecks.push_back(i);
    EXPECT_EQ(boxes, allBoxes);
    EXPECT_EQ(checks, allChecks);
    EXPECT_EQ(*indices.rbegin(), static_cast<int>(screen_.frames.size()) - 1);
    EXPECT_TRUE(!hasOwner() || screen_.frames.front().boxes.holds(0));
}

TEST_P(Catalogue, OwnWordsAreAboutColumnsOfTheTable) {
    std::set<QString> columns;
    for (const data::Column& column : data::table(QString(screen_.table)).columns)
        columns.insert(column.name);
    for (const Override& own : screen_.overrides)
        EXPECT_TRUE(columns.contains(own.column));
    for (const QLatin1StringView column : screen_.leftOut)
        EXPECT_TRUE(columns.contains(column));
    EXPECT_EQ(screen_.shared.has_value(), columns.contains(u"Type"_s) && box(1).name == "Name"_L1);
}

TEST(Catalogues, HoldEveryWindowOnce) {
    EXPECT_EQ(ownedScreens().size(), 55u);
    EXPECT_EQ(referenceScreens().size(), 3u);
    EXPECT_EQ(childScreens().size(), 3u);
    std::set<QString> names;
    for (const ScreenDefinition& screen : allScreens()) {
        EXPECT_TRUE(names.insert(screen.name).second) << QString(screen.name).toStdString();
        ASSERT_NE(screenDefinition(QString(screen.name)), nullptr);
        EXPECT_EQ(screenDefinition(QString(screen.name))->addCaption, screen.addCaption);
    }
    EXPECT_EQ(screenDefinition(u"frmAttach"_s), nullptr);
}

// The files of a record are found by the prefix, so it must lead to one table.
TEST(Catalogues, APrefixMeansOneTable) {
    std::map<QString, QString> tables;
    std::set<QString> prefixes;
    for (const ScreenDefinition& screen : allScreens()) {
        if (screen.attachmentPrefix.isEmpty()) continue;
        const QString table = screen.table;
        EXPECT_EQ(tables.emplace(screen.attachmentPrefix, table).first->second, table);
        const bool fresh = prefixes.insert(screen.attachmentPrefix).second;
        EXPECT_TRUE(fresh || screen.shared) << QString(screen.name).toStdString();
    }
}

TEST(Catalogues, RowsOfASharedTableAreToldApart) {
    std::set<std::pair<QString, int>> types;
    for (const ScreenDefinition& screen : ownedScreens()) {
        if (!screen.shared) continue;
        EXPECT_TRUE(types.emplace(screen.table, screen.shared->type).second);
    }
    EXPECT_EQ(types.size(), 5u);
}

// The numbers stand in every household's file.
TEST(Catalogues, SitesKeepTheTypeOfTheirChildren) {
    const QLatin1StringView sites[] = {"frmHomesOwned"_L1, "frmHomesRented"_L1, "frmBusinessSite"_L1,   "frmAgSite"_L1,
                                       "frmRentals"_L1,    "frmUndeveloped"_L1, "frmOtherRealEstate"_L1};
    int type = 0;
    for (const QLatin1StringView name : sites) {
        const ScreenDefinition* site = screenDefinition(QString(name));
        ASSERT_NE(site, nullptr);
        EXPECT_EQ(site->parentType, ++type);
        EXPECT_FALSE(site->children.empty());
        // The child's title quotes this box.
        EXPECT_EQ(shownColumns(*site).at(1).name, "Description"_L1);
    }
    for (const ScreenDefinition& screen : allScreens())
        EXPECT_EQ(screen.children.empty(), screen.parentType == 0);
}

}  // namespace screens
