#include "screens/catalogue/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "data/tables.h"
#include "screens/catalogue/person_entry.h"
#include "screens/catalogue/screen_fields.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

std::vector<ScreenDefinition> allScreens() {
    std::vector<ScreenDefinition> all{personEntry()};
    for (const auto group : {ownedScreens(), referenceScreens(), childScreens()}) {
        all.insert(all.end(), group.begin(), group.end());
    }
    return all;
}

}  // namespace

// Reading down is reading by number, and no frame is named after a field that the screen hasn't got.
TEST(Catalogues, FramesTakeUpTheFieldsInTheirOrder) {
    for (const ScreenDefinition& screen : allScreens()) {
        SCOPED_TRACE(QString(screen.name).toStdString());
        const std::vector<data::Column> fields = screenFields(screen);
        int box = 0;
        int check = 0;
        std::set<int> indices;
        for (const FilledFrame& frame : filledFrames(screen)) {
            EXPECT_GT(frame.boxes.count() + frame.checks.count(), 0) << QString(frame.caption).toStdString();
            EXPECT_TRUE(indices.insert(frame.index).second);
            for (const auto& [range, next] : {std::pair(frame.boxes, &box), std::pair(frame.checks, &check)}) {
                if (range.count() == 0) continue;
                EXPECT_EQ(range.first, *next);
                *next = range.last + 1;
            }
        }
        EXPECT_EQ(box + check, screen.firstField() + static_cast<int>(fields.size()));
        EXPECT_EQ(*indices.rbegin(), static_cast<int>(screen.frames.size()) - 1);
        for (const Frame& frame : screen.frames) {
            for (const QLatin1StringView field : {frame.firstBox, frame.firstCheck}) {
                EXPECT_TRUE(field.isEmpty() || std::ranges::count(fields, field, &data::Column::key) == 1)
                    << QString(field).toStdString();
            }
        }
    }
}

TEST(Catalogues, OwnWordsAreAboutColumnsOfTheTable) {
    for (const ScreenDefinition& screen : allScreens()) {
        SCOPED_TRACE(QString(screen.name).toStdString());
        std::set<QString> columns;
        for (const data::Column& column : data::table(QString(screen.table)).columns)
            columns.insert(column.name);
        for (const Override& own : screen.overrides)
            EXPECT_TRUE(columns.contains(own.column));
        for (const QLatin1StringView column : screen.leftOut)
            EXPECT_TRUE(columns.contains(column));
        EXPECT_TRUE(screen.unchecked.isEmpty() || columns.contains(screen.unchecked));
    }
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

}  // namespace screens
