#include "platform/base/display_format.h"

#include <gtest/gtest.h>

#include <QDateTime>

#include "tests/platform/error_number.h"

using namespace Qt::StringLiterals;

namespace platform {
namespace {

QVariant day(int year, int month, int dayOfMonth) {
    return QDateTime(QDate(year, month, dayOfMonth), QTime(0, 0), Qt::UTC);
}

TEST(DisplayFormat, ActsByTheKindOfTheColumn) {
    using enum ColumnKind;
    struct {
        QVariant value;
        ColumnKind kind;
        QStringView format, shown;
    } const cases[] = {
        {1234.5, Number, u"", u"1234.5"},
        {1234.5, Number, u"#,##0.00", u"1,234.50"},
        {qint64{12}, Number, u"0.000%", u"1200.000%"},
        {qint64{7}, Counter, u"", u"7"},
        {qint64{7}, Counter, u"0.00", u"7.00"},
        {1234.5, Number, u"M/d/yy", u"1234.5"},
        {u"12345"_s, Text, u"#,##0.00", u"12345"},
        {u"5/13/2001"_s, Text, u"M/d/yy", u"5/13/2001"},
        {u"a\r\nb"_s, Memo, u"", u"a\r\nb"},
        {day(2001, 5, 13), Date, u"", u"5/13/2001"},
        {day(2001, 5, 13), Date, u"M/d/yy", u"5/13/01"},
        {day(2001, 5, 13), Date, u"#,##0.00", u"5/13/2001"},
        {day(1930, 1, 1), Date, u"M/d/yy", u"1/1/30"},
        {day(1929, 12, 31), Date, u"M/d/yy", u"12/31/1929"},
        {day(2029, 12, 31), Date, u"M/d/yy", u"12/31/29"},
        {day(2030, 1, 1), Date, u"M/d/yy", u"1/1/2030"},
        {true, YesNo, u"", u"True"},
        {false, YesNo, u"0", u"False"},
        {QVariant(), Number, u"0.000", u""},
        {QVariant(), Date, u"M/d/yy", u""},
        {QVariant(), YesNo, u"", u""},
    };
    for (const auto& [value, kind, format, shown] : cases) {
        EXPECT_EQ(displayText(value, kind, format.toString()), shown) << format.toString().toStdString();
    }
}

TEST(DisplayFormat, TypedTextBecomesAValueOfTheColumn) {
    using enum ColumnKind;
    struct {
        QStringView text;
        ColumnKind kind;
        QVariant value;
    } const cases[] = {
        {u"1,234.50", Number, 1234.5},
        {u"(5)", Number, qint64{-5}},
        {u"", Number, QVariant()},
        {u"", Date, QVariant()},
        {u"", YesNo, QVariant()},
        {u"", Text, u""_s},
        {u" 5 ", Text, u" 5 "_s},
        {u"", Memo, u""_s},
        {u"june 1 2002", Date, day(2002, 6, 1)},
        {u"true", YesNo, true},
        {u"0", YesNo, false},
        {u"-1", YesNo, true},
        {u"9007199254740991", Number, qint64{9007199254740991}},
    };
    for (const auto& [text, kind, value] : cases) {
        const QVariant stored = storedValue(text.toString(), kind);
        EXPECT_EQ(stored, value) << text.toString().toStdString();
        EXPECT_EQ(stored.typeId(), value.typeId()) << text.toString().toStdString();
    }
    for (const ColumnKind kind : {Number, Date, YesNo, Counter}) {
        EXPECT_EQ(test::errorNumber([kind] { return storedValue(u"soon"_s, kind); }), -2147217887);
    }
}

TEST(DisplayFormat, DatesOfAllYearsReadBackAsThemselves) {
    // A step that weeks, months and leap cycles don't divide by meets every day of every month many times over.
    constexpr int step = 11;
    for (QDate date(100, 1, 1); date <= QDate(9999, 12, 31); date = date.addDays(step)) {
        const QVariant value = QDateTime(date, QTime(0, 0), Qt::UTC);
        for (const QString& format : {u""_s, u"M/d/yy"_s}) {
            const QString shown = displayText(value, ColumnKind::Date, format);
            ASSERT_EQ(storedValue(shown, ColumnKind::Date), value) << shown.toStdString();
        }
    }
}

}  // namespace
}  // namespace platform
