#include "output/document.h"

#include <gtest/gtest.h>

#include <random>

#include "output/field_entry.h"
#include "output/printable_screen.h"
#include "platform/base/text_positions.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using output::fieldEntry;
using output::Medium;

namespace {

// The prefix "      1.  A - " is 14 characters wide, so 65 characters fit behind it and a first line ends at 71.
constexpr int fits = 65;
const QString prefix = u"      1.  A - "_s;
const QString indent(10, u' ');

QString x(int count) {
    return QString(count, u'x');
}

QString entry(const QString& value, Medium medium = Medium::Page) {
    return fieldEntry({0, u"A"_s, value}, medium);
}

struct Case {
    const char* what;
    QString value;
    QString page;
    QString file;
};

TEST(FieldEntry, FollowsTheRulesToTheCharacter) {
    const Case table[] = {
        {"empty", u""_s, u"\r\n     \r\n"_s, u"\r\n     \r\n"_s},
        {"one line", u"abc"_s, u"abc\r\n     \r\n"_s, u"abc\r\n     \r\n"_s},
        {"the longest that fits", x(fits), x(fits) + u"\r\n     \r\n"_s, x(fits) + u"\r\n     \r\n"_s},
        {"a line end behind", u"abc\r\n"_s, u"abc\r\r\n"_s, u"abc\r\r\n\r\n"_s},
        {"last of three", u"abc\r\ndef"_s, u"abc\r"_s + indent + u"de\r\n\r\n"_s,
         u"abc\r\r\n"_s + indent + u"de\r\n"_s},
        {"last of one", u"abc\r\nd"_s, u"abc\r\r\n"_s, u"abc\r\r\n\r\n"_s},
        {"three lines", u"ab\r\ncd\r\nefg"_s, u"ab\r"_s + indent + u"cd\r"_s + indent + u"ef\r\n\r\n"_s,
         u"ab\r\r\n"_s + indent + u"cd\r"_s + indent + u"ef\r\n"_s},
        {"one more than fits", x(fits + 1), x(fits + 1) + u"\r\n\r\n"_s, {}},
        {"cut in a word", x(80), x(71) + u"\r\n"_s + indent + x(9) + u"\r\n\r\n"_s, {}},
        {"one left over", x(72), x(71) + u"\r\n\r\n"_s, {}},
        {"blank at the end of the span", x(70) + u" yy"_s, x(70) + u" \r\n"_s + indent + u"yy\r\n\r\n"_s, {}},
        {"farthest blank", x(50) + u' ' + x(30), x(50) + u" \r\n"_s + indent + x(30) + u"\r\n\r\n"_s, {}},
        {"blank out of reach",
         x(49) + u"  "_s.left(1) + x(30),
         x(49) + u' ' + x(21) + u"\r\n"_s + indent + x(9) + u"\r\n\r\n"_s,
         {}},
        {"blanks skipped shorten the next span",
         x(70) + u"    "_s + x(90),
         x(70) + u" \r\n"_s + indent + x(77) + u"\r\n"_s + indent + x(13) + u"\r\n\r\n"_s,
         {}},
        {"hard line end",
         u"ab\r\n"_s + x(90),
         u"ab\r"_s + indent + x(79) + u"\r\n"_s + indent + x(11) + u"\r\n\r\n"_s,
         {}},
    };
    for (const Case& row : table) {
        EXPECT_EQ(entry(row.value), prefix + row.page) << row.what;
        EXPECT_EQ(entry(row.value, Medium::File), prefix + (row.file.isNull() ? row.page : row.file)) << row.what;
    }
}

TEST(FieldEntry, ContinuesUnderTheLabelAndBeginsLateBehindALongOne) {
    EXPECT_EQ(fieldEntry({9, u"A"_s, u"abc\r\ndef"_s}, Medium::Page),
              u"      10.  A - abc\r"_s + QString(11, u' ') + u"de\r\n\r\n"_s);
    const QString label = x(60);
    EXPECT_EQ(fieldEntry({0, label, u"averylongword another"_s}, Medium::Page),
              u"      1.  "_s + label + u" - \r\n"_s + indent + u"averylongword another\r\n\r\n"_s);
}

/// The value of an entry without the line ends and indents that broke it.
QString joined(const QString& text) {
    return QString(text).remove(u"\r\n"_s + indent).sliced(prefix.size()).remove(u"\r\n"_s);
}

TEST(FieldEntry, CutsByPositionsAndNoCharacterInTwo) {
    const QString characters[] = {u"\U0001F600"_s, u"\u65E5"_s, u"e\u0301"_s, u"\U0001F469\u200D\U0001F467"_s,
                                  u"\u05D0"_s};
    for (const QString& character : characters) {
        const QString value = u"x"_s + character.repeated(120);
        const QStringList lines = entry(value).split(u"\r\n"_s);
        const qsizetype wide = platform::positionsOf(character);
        EXPECT_EQ(joined(entry(value)), value);
        EXPECT_EQ(platform::positionsOf(lines[0]), 85 - 70 % wide) << character.toStdString();
        for (const QString& line : lines) {
            EXPECT_LE(platform::positionsOf(line), 90);
            EXPECT_TRUE(line.isValidUtf16());
            EXPECT_FALSE(line.trimmed().startsWith(u'\u0301') || line.trimmed().startsWith(u'\u200D'));
        }
    }
    EXPECT_EQ(entry(u"\u65E5"_s.repeated(32)), prefix + u"\u65E5"_s.repeated(32) + u"\r\n     \r\n"_s);
    EXPECT_EQ(entry(u"\u65E5\r\n\u672C\u8A9E\r\n"_s + u"\u65E5"_s.repeated(40)),
              prefix + u"\u65E5\r"_s + indent + u"\u672C\u8A9E\r"_s + indent + u"\u65E5"_s.repeated(39) + u"\r\n"_s +
                  indent + u"\u65E5\r\n\r\n"_s);
}

TEST(Document, HasATitleTheBoxesTheChecksAndAnEmptyLine) {
    const output::PrintableScreen screen{
        u"Homes -- Ann"_s, {{0, u"Name:"_s, u"Ann"_s}}, {{u"Sold"_s, true}, {u"Let"_s, false}}};
    const QString title = u"     The Homes -- Ann\r\n     For 15-Jan-26\r\n\r\n"_s;
    const QString body = u"      1.  Name: - Ann\r\n     \r\n"_s;
    const QDate day(2026, 1, 15);
    EXPECT_EQ(output::pageDocument(screen, day),
              u"\r\n\r\n\r\n\r\n\r\n\r\n"_s + title + body + u"      Sold - Yes\r\n      Let - No\r\n\r\n"_s);
    EXPECT_EQ(output::fileDocument(screen, day), title + body + u"     Sold - Yes\r\n     Let - No\r\n\r\n"_s);
}

/// What may be missing: the last character, blanks, and line ends.
QString bare(QString text) {
    return text.remove(u' ').remove(u'\r').remove(u'\n');
}

TEST(FieldEntry, KeepsEveryCharacterInOrderButTheLastAndTheBlanksAtBreaks) {
    std::mt19937 random(7);
    const QStringList parts{u"a"_s, u"b"_s, u"c"_s, u" "_s, u" "_s, u"\r\n"_s, u"longword"_s, u"é"_s};
    for (int round = 0; round < 20'000; ++round) {
        QString value;
        const int count = static_cast<int>(random() % 120);
        const unsigned kinds = 1 + random() % 8;
        for (int i = 0; i < count; ++i)
            value += parts[static_cast<int>(random() % kinds)];
        const QString label(static_cast<int>(random() % 90), u'L');
        const output::PrintableField field{static_cast<int>(random() % 12), label, value};
        const qsizetype head = u"      %1.  "_s.arg(field.index + 1).size() + label.size() + 3;
        for (const Medium medium : {Medium::Page, Medium::File}) {
            const QString kept = bare(fieldEntry(field, medium).sliced(head));
            ASSERT_TRUE(kept == bare(value) || kept == bare(value.chopped(1))) << value.toStdString();
        }
    }
}

}  // namespace
