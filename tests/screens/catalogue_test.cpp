#include "screens/catalogue/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

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

}  // namespace screens
