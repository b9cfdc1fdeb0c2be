#include "platform/base/region.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <cmath>
#include <optional>

#include "platform/base/conversions.h"
#include "platform/base/date_text.h"
#include "platform/base/display_format.h"
#include "tests/platform/fixed_clock.h"

using namespace Qt::StringLiterals;

namespace platform {
namespace {

Region region(const QString& locale) {
    return Region::of(QLocale(locale));
}

QDateTime moment(int year, int month, int day, int hour = 0, int minute = 0) {
    return QDateTime(QDate(year, month, day), QTime(hour, minute), Qt::UTC);
}

TEST(Region, ReadsNumbersByItsOwnSeparatorsAndDigits) {
    struct {
        QString locale;
        QStringView text;
        std::optional<double> value;
    } const cases[] = {
        {u"en_US"_s, u"250,000.50", 250000.5},
        {u"de_DE"_s, u"250000,50", 250000.5},
        {u"de_DE"_s, u"1.234.567,5", 1234567.5},
        {u"de_DE"_s, u"12 34", std::nullopt},
        {u"de_DE"_s, u"1,2,3", std::nullopt},
        {u"de_DE"_s, u"1.234,5 \u20AC", 1234.5},
        {u"de_DE"_s, u"$5", std::nullopt},
        {u"de_DE"_s, u"(5,25)", -5.25},
        {u"de_DE"_s, u"1,5e3", 1500},
        {u"fr_FR"_s, u"1\u202F234,50", 1234.5},
        {u"fr_FR"_s, u"1\u00A0234,50", 1234.5},
        {u"fr_FR"_s, u"1 234,50 \u20AC", 1234.5},
        {u"fr_FR"_s, u"1234.50", std::nullopt},
        {u"fr_FR"_s, u"1,234.50", std::nullopt},
        {u"en_GB"_s, u"\u00A31,234.50", 1234.5},
        {u"ja_JP"_s, u"1,234.50", 1234.5},
        {u"sv_SE"_s, u"\u22121 234,50 kr", -1234.5},
        {u"sv_SE"_s, u"-1234,5", -1234.5},
        {u"en_US"_s, u"\u22125", std::nullopt},
        {u"de_CH"_s, u"1'234.50", 1234.5},
        {u"ar"_s, u"\u0661\u066C\u0662\u0663\u0664\u066B\u0665", 1234.5},
        {u"ar"_s, u"1234\u066B5", 1234.5},
        {u"ar"_s, u"1234.5", std::nullopt},
        {u"en_US"_s, u"\u0661", std::nullopt},
    };
    for (const auto& [locale, text, value] : cases) {
        SCOPED_TRACE((locale + u' ' + text.toString()).toStdString());
        const Region here = region(locale);
        ASSERT_EQ(isNumeric(text.toString(), here), value.has_value());
        if (value) {
            EXPECT_EQ(toDouble(text.toString(), here), *value);
        }
    }
}

TEST(Region, ReadsDatesInItsOwnOrderWithItsOwnNames) {
    struct {
        QString locale;
        QStringView text, date;
    } const cases[] = {
        {u"en_US"_s, u"1/2/2001", u"2001-01-02"},
        {u"en_GB"_s, u"1/2/2001", u"2001-02-01"},
        {u"en_GB"_s, u"5/13/2001", u"2001-05-13"},
        {u"en_GB"_s, u"1/2", u"2023-02-01"},
        {u"en_GB"_s, u"13 Sept 2001", u"2001-09-13"},
        {u"de_DE"_s, u"31.12.2001", u"2001-12-31"},
        {u"de_DE"_s, u"1.2.01", u"2001-02-01"},
        {u"de_DE"_s, u"1. 2. 2001", u"2001-02-01"},
        {u"de_DE"_s, u"31.12.2001 15:30", u"2001-12-31 15:30"},
        {u"de_DE"_s, u"31. Dezember 2001", u"2001-12-31"},
        {u"de_DE"_s, u"3. M\u00E4r. 2001", u"2001-03-03"},
        {u"de_DE"_s, u"3. M\u00C4RZ 2001", u"2001-03-03"},
        {u"de_DE"_s, u"3-M\u00E4r-01", u"2001-03-03"},
        {u"de_DE"_s, u"3. Sept. 2001", u"2001-09-03"},
        {u"de_DE"_s, u"March 3, 2001", u"2001-03-03"},
        {u"de_DE"_s, u"30.2.2001", u""},
        {u"de_DE"_s, u"31..12.2001", u""},
        {u"de_DE"_s, u"13.50", u""},
        {u"fr_FR"_s, u"31/12/2001", u"2001-12-31"},
        {u"fr_FR"_s, u"31.12.2001", u""},
        {u"fr_FR"_s, u"3 f\u00E9vr. 2001", u"2001-02-03"},
        {u"fr_FR"_s, u"3 F\u00C9VRIER 2001", u"2001-02-03"},
        {u"ja_JP"_s, u"2001/12/31", u"2001-12-31"},
        {u"ja_JP"_s, u"01/2/3", u"2001-02-03"},
        {u"ja_JP"_s, u"2/3", u"2023-02-03"},
        {u"ja_JP"_s, u"23-11\u6708-26", u"2026-11-23"},
        {u"sv_SE"_s, u"2001-12-31", u"2001-12-31"},
        {u"sv_SE"_s, u"1 maj 2001", u"2001-05-01"},
        {u"en_US"_s, u"1 maj 2001", u""},
        {u"ar"_s, u"\u0663\u0661/\u0661\u0662/\u0662\u0660\u0660\u0661", u"2001-12-31"},
        {u"ar"_s, u"31/12/2001", u"2001-12-31"},
        {u"ar"_s, u"\u0661/\u0662/\u0662\u0660\u0660\u0661 \u0663:\u0663\u0660 \u0645", u"2001-02-01 15:30"},
    };
    const FixedClock clock(QDate(2023, 8, 1));
    const ClockInPlace inPlace(clock);
    for (const auto& [locale, text, date] : cases) {
        SCOPED_TRACE((locale + u' ' + text.toString()).toStdString());
        const Region here = region(locale);
        ASSERT_EQ(isDate(text.toString(), here), !date.isEmpty());
        if (date.isEmpty()) continue;
        const QDateTime read = toDate(text.toString(), here);
        const bool midnight = read.time() == QTime(0, 0);
        EXPECT_EQ(read.toString(midnight ? u"yyyy-MM-dd"_s : u"yyyy-MM-dd hh:mm"_s), date);
    }
}

TEST(Region, ShowsNumbersAndDatesAsTheyAreWrittenThere) {
    struct {
        QString locale;
        QStringView amount, number, shortYear, plain, medium, time;
    } const cases[] = {
        {u"C"_s, u"-1,234.50", u"0.5", u"5/3/01", u"5/3/2001", u"03-May-01", u"3:30:00 PM"},
        {u"POSIX"_s, u"-1,234.50", u"0.5", u"5/3/01", u"5/3/2001", u"03-May-01", u"3:30:00 PM"},
        {u"en_US"_s, u"-1,234.50", u"0.5", u"5/3/01", u"5/3/2001", u"03-May-01", u"3:30:00 PM"},
        {u"de_DE"_s, u"-1.234,50", u"0,5", u"3.5.01", u"03.05.2001", u"03-Mai-01", u"15:30:00"},
        {u"fr_FR"_s, u"-1\u202F234,50", u"0,5", u"3/5/01", u"03/05/2001", u"03-mai-01", u"15:30:00"},
        {u"en_GB"_s, u"-1,234.50", u"0.5", u"3/5/01", u"03/05/2001", u"03-May-01", u"15:30:00"},
        {u"ja_JP"_s, u"-1,234.50", u"0.5", u"01/5/3", u"2001/05/03", u"03-5\u6708-01", u"15:30:00"},
        {u"sv_SE"_s, u"-1\u00A0234,50", u"0,5", u"01-5-3", u"2001-05-03", u"03-maj-01", u"15:30:00"},
        {u"fi_FI"_s, u"-1\u00A0234,50", u"0,5", u"3.5.01", u"3.5.2001", u"03-touko-01", u"15:30:00"},
        {u"ar"_s, u"-\u0661\u066C\u0662\u0663\u0664\u066B\u0665\u0660", u"\u0660\u066B\u0665",
         u"\u0663/\u0665/\u0660\u0661", u"\u0663/\u0665/\u0662\u0660\u0660\u0661",
         u"\u0660\u0663-\u0645\u0627\u064A\u0648-\u0660\u0661", u"\u0663:\u0663\u0660:\u0660\u0660 \u0645"},
    };
    const QDateTime day = moment(2001, 5, 3);
    for (const auto& [locale, amount, number, shortYear, plain, medium, time] : cases) {
        SCOPED_TRACE(locale.toStdString());
        const Region here = region(locale);
        EXPECT_EQ(formatNumber(-1234.5, u"#,##0.00"_s, here), amount);
        EXPECT_EQ(numberText(0.5, here), number);
        EXPECT_EQ(formatDate(day, u"M/d/yy"_s, here), shortYear);
        EXPECT_EQ(dateText(day, here), plain);
        EXPECT_EQ(mediumDate(day.date(), here), medium);
        EXPECT_EQ(dateText(moment(1899, 12, 30, 15, 30), here), time);
    }
}

TEST(Region, EveryRegionReadsBackWhatItShows) {
    const QVariant numbers[] = {0.5, -1234567.5, 1e20, 1.0 / 3, 99999.995, 1e-7};
    const QVariant dates[] = {moment(2001, 2, 3),   moment(1929, 12, 31),        moment(2029, 1, 9),
                              moment(2026, 11, 23), moment(1950, 4, 30, 15, 30), moment(1999, 9, 1, 0, 5)};
    const auto locales = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
    ASSERT_GT(locales.size(), 300);
    for (const QLocale& locale : locales) {
        SCOPED_TRACE(locale.name().toStdString());
        const Region here = Region::of(locale);
        for (const QVariant& number : numbers) {
            const QString shown = displayText(number, ColumnKind::Number, {}, here);
            EXPECT_NEAR(storedValue(shown, ColumnKind::Number, here).toDouble(), number.toDouble(),
                        std::abs(number.toDouble()) * 1e-14)
                << shown.toStdString();
            const QString amount = displayText(number, ColumnKind::Number, u"#,##0.000"_s, here);
            EXPECT_NEAR(storedValue(amount, ColumnKind::Number, here).toDouble(), number.toDouble(), 0.0005)
                << amount.toStdString();
        }
        for (const QVariant& date : dates) {
            const QString plain = displayText(date, ColumnKind::Date, {}, here);
            if (!isDate(plain, here)) {
                ADD_FAILURE() << plain.toStdString();
                continue;
            }
            EXPECT_EQ(storedValue(plain, ColumnKind::Date, here), date) << plain.toStdString();
            const QDateTime day = moment(date.toDate().year(), date.toDate().month(), date.toDate().day());
            const QString formatted = displayText(date, ColumnKind::Date, u"M/d/yy"_s, here);
            if (!isDate(formatted, here)) {
                ADD_FAILURE() << formatted.toStdString();
                continue;
            }
            EXPECT_EQ(toDate(formatted, here), day) << formatted.toStdString();
        }
        for (int month = 1; month <= 12; ++month) {
            const QString shown = mediumDate(QDate(2001, month, 13), here);
            if (!isDate(shown, here)) {
                ADD_FAILURE() << shown.toStdString();
                continue;
            }
            EXPECT_EQ(toDate(shown, here), moment(2001, month, 13)) << shown.toStdString();
        }
    }
}

TEST(Region, StatementsAndKeysKnowNoRegion) {
    struct {
        QString locale;
        QStringView typed, written;
    } const cases[] = {
        {u"en_US"_s, u"1,234", u"1,234"},         {u"en_US"_s, u"&H5", u"&H5"},    {u"de_DE"_s, u"2,5", u"2.5"},
        {u"de_DE"_s, u"1.234", u"1,234"},         {u"fr_FR"_s, u" 12 ", u" 12 "},  {u"fr_FR"_s, u"2,5", u"2.5"},
        {u"ar"_s, u"\u0661\u066B\u0665", u"1.5"}, {u"sv_SE"_s, u"\u22121", u"-1"}, {u"de_DE"_s, u"(5)", u"(5)"},
    };
    for (const auto& [locale, typed, written] : cases)
        EXPECT_EQ(statementNumber(typed.toString(), region(locale)), written) << typed.toString().toStdString();
    EXPECT_EQ(displayText(qint64{12345}, ColumnKind::Number, {}, region(u"ar"_s)), u"12345"_s);
    EXPECT_EQ(displayText(qint64{12345}, ColumnKind::Counter, {}, region(u"de_DE"_s)), u"12345"_s);
}

}  // namespace
}  // namespace platform
