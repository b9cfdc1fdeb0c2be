#include "platform/base/conversions.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/platform/error_number.h"

namespace platform {
namespace {

using test::errorNumber;

struct NumberCase {
    QStringView text;
    std::optional<double> value;
};

const NumberCase numberCases[] = {
    {u"123", 123},
    {u"  123  ", 123},
    {u"-123", -123},
    {u"+123", 123},
    {u"- 5", -5},
    {u"123-", -123},
    {u"123+", 123},
    {u"(123)", -123},
    {u"-(5)", std::nullopt},
    {u"(5", std::nullopt},
    {u"( 5 )", -5},
    {u"1,234.50", 1234.5},
    {u"1,2,3", 123},
    {u"12,34", 1234},
    {u"1,234.5,6", std::nullopt},
    {u",5", std::nullopt},
    {u"5,", 5},
    {u"$5", 5},
    {u"$1,234.50", 1234.5},
    {u"-$5", -5},
    {u"$-5", -5},
    {u"($5)", -5},
    {u"5$", 5},
    {u"$", std::nullopt},
    {u".5", 0.5},
    {u"5.", 5},
    {u".", std::nullopt},
    {u"-", std::nullopt},
    {u"1.2.3", std::nullopt},
    {u"1e5", 100000},
    {u"1E+5", 100000},
    {u"1d5", 100000},
    {u"1e", std::nullopt},
    {u"e5", std::nullopt},
    {u"&H1F", 31},
    {u"&O17", 15},
    {u"&HG", std::nullopt},
    {u"", std::nullopt},
    {u"   ", std::nullopt},
    {u"12 dollars", std::nullopt},
    {u"12 34", std::nullopt},
    {u"50%", std::nullopt},
    {u"1/2", std::nullopt},
    {u"5/13/2001", std::nullopt},
    {u"True", std::nullopt},
    {u"abc", std::nullopt},
    {u"37,024.00", 37024},
    {u"1e400", std::nullopt},
    {u"5,.5", 5.5},
    {u"$5-", -5},
    {u"-5-", std::nullopt},
    {u"$5$", std::nullopt},
    {u"(1e5)", std::nullopt},
    {u"\t5\t", 5},
    {u"1e-400", 0},
    {u"\u0665", std::nullopt},
    {u"inf", std::nullopt},
    {u"&HFFFFFFFFFFFFFFFFF", std::nullopt},
};

TEST(Conversions, TextReadsAsNumber) {
    for (const auto& [text, value] : numberCases) {
        SCOPED_TRACE(text.toString().toStdString());
        EXPECT_EQ(isNumeric(text.toString()), value.has_value());
        EXPECT_EQ(errorNumber([&] { return toDouble(text.toString()); }), value ? 0 : 13);
        if (value && isNumeric(text.toString())) {
            EXPECT_EQ(toDouble(text.toString()), *value);
        }
    }
}

TEST(Conversions, WholeNumbersRoundHalfToEvenAndKeepTheirRange) {
    struct {
        QStringView text;
        int value;
        int error;
    } const cases[] = {
        {u"2.5", 2, 0},     {u"3.5", 4, 0},         {u"0.5", 0, 0},      {u"-2.5", -2, 0},         {u"-0.5", 0, 0},
        {u"1.50001", 2, 0}, {u"32767.4", 32767, 0}, {u"32767.5", 0, 6},  {u"-32768.5", -32768, 0}, {u"40000", 0, 6},
        {u"", 0, 13},       {u" 12 ", 12, 0},       {u"1,234", 1234, 0}, {u"1,2,3", 123, 0},       {u"12abc", 0, 13},
        {u"(7)", -7, 0},    {u"&H10", 16, 0},       {u"1e3", 1000, 0},   {u"$5.50", 6, 0},         {u"abc", 0, 13},
    };
    for (const auto& [text, value, error] : cases) {
        SCOPED_TRACE(text.toString().toStdString());
        EXPECT_EQ(errorNumber([&] { return toInteger(text.toString()); }), error);
        if (error == 0) {
            EXPECT_EQ(toInteger(text.toString()), value);
        }
    }
    EXPECT_EQ(toLong(QStringLiteral("40000")), 40000);
    EXPECT_EQ(toLong(-2147483648.5), -2147483647 - 1);
    EXPECT_EQ(errorNumber([] { return toLong(QStringLiteral("2147483647.5")); }), 6);
}

TEST(Conversions, ValReadsTheLeadingNumber) {
    struct {
        QStringView text;
        double value;
    } const cases[] = {
        {u"2457", 2457}, {u" 2 45 7", 2457}, {u"24 and 57", 24}, {u"1,234", 1},       {u"$5", 0},       {u"abc", 0},
        {u"", 0},        {u"-5", -5},        {u"5-", 5},         {u"(5)", 0},         {u".5", 0.5},     {u"1e3", 1000},
        {u"1e", 1},      {u"1d2", 100},      {u"&HFF", 255},     {u"&HFFFF", -1},     {u"12abc34", 12}, {u"+7", 7},
        {u"50%", 50},    {u"2\t5\n7", 257},  {u"2\r5", 2},       {u"&HFFFFFFFF", -1},
    };
    for (const auto& [text, value] : cases)
        EXPECT_EQ(val(text.toString()), value) << text.toString().toStdString();
    EXPECT_EQ(errorNumber([] { return val(QStringLiteral("50.5%")); }), 13);
    EXPECT_EQ(errorNumber([] { return val(QStringLiteral("1e400")); }), 6);
}

TEST(Conversions, NumbersTurnIntoText) {
    struct {
        double value;
        const char* text;
        const char* withSign;
    } const cases[] = {
        {12, "12", " 12"},
        {0, "0", " 0"},
        {-12, "-12", "-12"},
        {0.5, "0.5", " .5"},
        {-0.25, "-0.25", "-.25"},
        {1234567.5, "1234567.5", " 1234567.5"},
        {-0.0, "0", " 0"},
        {1e16, "1E+16", " 1E+16"},
        {1.0 / 3, "0.333333333333333", " .333333333333333"},
        {0.1 + 0.2, "0.3", " .3"},
        {123456789012345, "123456789012345", " 123456789012345"},
    };
    for (const auto& [value, text, withSign] : cases) {
        EXPECT_EQ(numberText(value).toStdString(), text);
        EXPECT_EQ(str(value).toStdString(), withSign);
    }
}

TEST(Conversions, KilobytesRoundHalfToEven) {
    struct {
        int bytes;
        const char* text;
    } const cases[] = {
        {0, "0"},    {5, "0"},    {128, "0.12"}, {384, "0.38"},   {640, "0.62"},   {896, "0.88"},     {1000, "0.98"},
        {1024, "1"}, {1029, "1"}, {1536, "1.5"}, {131072, "128"}, {133120, "130"}, {1048576, "1024"},
    };
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(numberText(roundHalfEven(bytes / 1024.0, 2)).toStdString(), text);
    }
    EXPECT_EQ(roundHalfEven(-2.5, 0), -2);
    EXPECT_EQ(roundHalfEven(1e300, 20), 1e300);
    EXPECT_EQ(errorNumber([] { return roundHalfEven(1, -1); }), 5);
}

TEST(Conversions, PatternsRoundHalfAwayFromZero) {
    struct {
        double value;
        QStringView pattern;
        const char* text;
    } const cases[] = {
        {1234.5, u"#,##0.00", "1,234.50"},
        {0, u"#,##0.00", "0.00"},
        {-1234.5, u"#,##0.00", "-1,234.50"},
        {0.125, u"#,##0.00", "0.13"},
        {2.5, u"0", "3"},
        {-2.5, u"0", "-3"},
        {5.25, u"0.000", "5.250"},
        {0.0625, u"0.000", "0.063"},
        {1234567.891, u"#,##0.00", "1,234,567.89"},
        {1234.5, u"0.000", "1234.500"},
        {0.05, u"0.000%", "5.000%"},
        {1234.5678, u"#,##0.000", "1,234.568"},
        {12, u"0.000%", "1200.000%"},
        {12345, u"0.00", "12345.00"},
        {0.004, u"#,##0.00", "0.00"},
        {-0.004, u"#,##0.00", "-0.00"},
        {1.005, u"0.00", "1.01"},
        {999.995, u"#,##0.00", "1,000.00"},
        {9.9999999, u"0", "10"},
        {1e-300, u"0.00", "0.00"},
        {0, u"0.000%", "0.000%"},
        {0.00005, u"0.0000", "0.0001"},
        {100000, u"#,##0", "100,000"},
        {1e18, u"#,##0", "1,000,000,000,000,000,000"},
    };
    for (const auto& [value, pattern, text] : cases) {
        EXPECT_EQ(formatNumber(value, pattern.toString()).toStdString(), text);
    }
}

}  // namespace
}  // namespace platform
