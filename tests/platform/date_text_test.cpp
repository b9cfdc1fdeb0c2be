#include "platform/base/date_text.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/platform/error_number.h"
#include "tests/platform/fixed_clock.h"

using namespace Qt::StringLiterals;

namespace platform {
namespace {

struct DateCase {
    QStringView text;
    QStringView date;  ///< "" when the text is no date
};

const DateCase dateCases[] = {
    {u"5/13/2001", u"2001-05-13"},
    {u"05/13/01", u"2001-05-13"},
    {u"5-13-2001", u"2001-05-13"},
    {u"5 13 2001", u"2001-05-13"},
    {u"5,13,2001", u"2001-05-13"},
    {u"5/13-2001", u"2001-05-13"},
    {u"May 13, 2001", u"2001-05-13"},
    {u"MAY 13 2001", u"2001-05-13"},
    {u"13 May 2001", u"2001-05-13"},
    {u"13-May-01", u"2001-05-13"},
    {u"13May2001", u"2001-05-13"},
    {u"2001-05-13", u"2001-05-13"},
    {u"2001 May 13", u"2001-05-13"},
    {u"13/5/2001", u"2001-05-13"},
    {u"25/12/2010", u"2010-12-25"},
    {u"12/5/2001", u"2001-12-05"},
    {u"1/2/3", u"2003-01-02"},
    {u"1/2/29", u"2029-01-02"},
    {u"1/2/30", u"1930-01-02"},
    {u"1/2/99", u"1999-01-02"},
    {u"1/2/00", u"2000-01-02"},
    {u"1/2/100", u"0100-01-02"},
    {u"1/2/9999", u"9999-01-02"},
    {u"1/2/10000", u""},
    {u"2/29/2000", u"2000-02-29"},
    {u"2/29/2001", u""},
    {u"2/30/2001", u""},
    {u"Feb 30 2001", u""},
    {u"30 Feb 2001", u""},
    {u"4/31/2001", u""},
    {u"13/13/2001", u""},
    {u"0/5/2001", u""},
    {u"Feb 29 01", u"2029-02-01"},
    {u"29-Feb-01", u"2029-02-01"},
    {u"29Feb01", u"2029-02-01"},
    {u"Feb 30 01", u"1930-02-01"},
    {u"30 Apr 01", u"2001-04-30"},
    {u"31 Apr 01", u"1931-04-01"},
    {u"Feb 30", u"1930-02-01"},
    {u"Feb 31", u"1931-02-01"},
    {u"Feb 29", u"2029-02-01"},
    {u"Feb 32", u"1932-02-01"},
    {u"May 2001", u"2001-05-01"},
    {u"January 16", u"2023-01-16"},
    {u"13 May", u"2023-05-13"},
    {u"May", u""},
    {u"5/13", u"2023-05-13"},
    {u"13/5", u"2023-05-13"},
    {u"12-1", u"2023-12-01"},
    {u"2/30", u"1930-02-01"},
    {u"30/2", u"1930-02-01"},
    {u"30 6", u"2023-06-30"},
    {u"30,6", u"2023-06-30"},
    {u"5/2001", u"2001-05-01"},
    {u"10/2004", u"2004-10-01"},
    {u"2001/5", u"2001-05-01"},
    {u"13/40", u""},
    {u"12,024", u"2023-12-24"},
    {u"37,024", u""},
    {u"37,024.00", u""},
    {u"02/29/01", u"2029-02-01"},
    {u"30/2/01", u"1930-02-01"},
    {u"13/5/01", u"2013-05-01"},
    {u"13/5/99", u"1999-05-13"},
    {u"99/5/13", u"1999-05-13"},
    {u"0/5/14", u"2000-05-14"},
    {u"13/13/01", u"2013-01-13"},
    {u"99/99/99", u""},
    {u"10:55 AM", u"1899-12-30 10:55:00"},
    {u"23:30", u"1899-12-30 23:30:00"},
    {u"1:30:59", u"1899-12-30 01:30:59"},
    {u"10 AM", u"1899-12-30 10:00:00"},
    {u"13:55 AM", u"1899-12-30 13:55:00"},
    {u"12:00 AM", u"1899-12-30 00:00:00"},
    {u"12:30 PM", u"1899-12-30 12:30:00"},
    {u"24:00", u""},
    {u"12:60", u""},
    {u"13.50", u"1899-12-30 13:50:00"},
    {u"12.25", u"1899-12-30 12:25:00"},
    {u"12.25.10", u"1899-12-30 12:25:10"},
    {u"12.75", u""},
    {u"12.25.2010", u""},
    {u"5.13.01", u"1899-12-30 05:13:01"},
    {u"5.13.2001", u""},
    {u"24.12", u""},
    {u"0.12", u"1899-12-30 00:12:00"},
    {u"5/13/2001 3:30 PM", u"2001-05-13 15:30:00"},
    {u"5/13/2001 25:00", u""},
    {u"5/13/2001T10:00", u""},
    {u"3:30 PM 5/13/2001", u"2001-05-13 15:30:00"},
    {u"", u""},
    {u"   ", u""},
    {u"2001", u""},
    {u"37024", u""},
    {u"abc", u""},
    {u"Sunday, May 13, 2001", u""},
    {u"May 13th 2001", u""},
    {u"Sept 5 2001", u""},
    {u"5//13/2001", u""},
    {u"1/2/99999999999", u""},
    {u"/5/13/2001", u""},
    {u"5/13/2001-", u""},
    {u"Feb. 5 2001", u""},
    {u"May June 2001", u""},
    {u"5 13 2001 10:30", u"2001-05-13 10:30:00"},
    {u"5 / 13 , 2001", u"2001-05-13"},
    {u"5/13/2001 3p", u"2001-05-13 15:00:00"},
    {u"10 : 55 am", u"1899-12-30 10:55:00"},
    {u"10:00 11:00", u""},
    {u"May10:00", u""},
    {u"5/13 6/14 10:00", u""},
};

QString written(const QDateTime& date) {
    const bool midnight = date.time() == QTime(0, 0) && date.date() != QDate(1899, 12, 30);
    return date.toString(midnight ? u"yyyy-MM-dd"_s : u"yyyy-MM-dd HH:mm:ss"_s);
}

TEST(DateText, TextReadsAsDate) {
    const FixedClock clock(QDate(2023, 8, 1));
    const ClockInPlace inPlace(clock);
    for (const auto& [text, date] : dateCases) {
        SCOPED_TRACE(text.toString().toStdString());
        EXPECT_EQ(isDate(text.toString()), !date.isEmpty());
        EXPECT_EQ(test::errorNumber([&] { return toDate(text.toString()); }), date.isEmpty() ? 13 : 0);
        if (isDate(text.toString())) {
            EXPECT_EQ(written(toDate(text.toString())), date);
        }
    }
}

TEST(DateText, DayLeftToTheYearDependsOnTheClock) {
    const FixedClock leapYear(QDate(2024, 1, 1));
    const ClockInPlace inPlace(leapYear);
    EXPECT_EQ(written(toDate(u"Feb 29"_s)), u"2024-02-29"_s);
    {
        const FixedClock nextYear(QDate(2025, 1, 1));
        const ClockInPlace nested(nextYear);
        EXPECT_EQ(written(toDate(u"Feb 29"_s)), u"2029-02-01"_s);
    }
    EXPECT_EQ(written(toDate(u"5/13"_s)), u"2024-05-13"_s);
}

TEST(DateText, DatesTurnIntoText) {
    const auto utc = [](int y, int m, int d, int hour = 0, int minute = 0) {
        return QDateTime(QDate(y, m, d), QTime(hour, minute), Qt::UTC);
    };
    struct {
        QDateTime date;
        QStringView plain, shortYear, medium;
    } const cases[] = {
        {utc(2001, 5, 13), u"5/13/2001", u"5/13/01", u"13-May-01"},
        {utc(1999, 12, 1), u"12/1/1999", u"12/1/99", u"01-Dec-99"},
        {utc(2035, 1, 9), u"1/9/2035", u"1/9/35", u"09-Jan-35"},
        {utc(1925, 7, 4), u"7/4/1925", u"7/4/25", u"04-Jul-25"},
        {utc(2001, 5, 13, 15, 30), u"5/13/2001 3:30:00 PM", u"5/13/01", u"13-May-01"},
        {utc(2001, 5, 13, 0, 5), u"5/13/2001 12:05:00 AM", u"5/13/01", u"13-May-01"},
        {utc(1899, 12, 30, 15, 30), u"3:30:00 PM", u"12/30/99", u"30-Dec-99"},
        {utc(1899, 12, 30), u"12:00:00 AM", u"12/30/99", u"30-Dec-99"},
        {QDateTime(), u"", u"", u""},
    };
    for (const auto& [date, plain, shortYear, medium] : cases) {
        EXPECT_EQ(dateText(date), plain);
        EXPECT_EQ(formatDate(date, u"M/d/yy"_s), shortYear);
        EXPECT_EQ(formatDate(date, u"m/D/YY"_s), shortYear);
        EXPECT_EQ(mediumDate(date.date()), medium);
    }
}

}  // namespace
}  // namespace platform
