#include "output/listing.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

#include "output/segments.h"
#include "platform/base/text_positions.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using namespace output;

namespace {

/// The pieces of a cell, one behind the other, as they stand on the lines of its column.
QStringList pieces(const QString& text, int width) {
    Segments segments;
    const Segment* last = &segments.add(3, text, 1, width, 1);
    QStringList found{last->segmentText};
    while (!last->isLast()) {
        last = &segments.add(3, text, last->startPos + last->textLength, width, last->lineNum + 1);
        found << last->segmentText;
    }
    return found;
}

QStringList texts(const std::vector<GridColumn>& columns, const QStringList& cells) {
    QStringList found;
    for (const ListingLine& line : listingLines(columns, cells))
        found << line.text;
    return found;
}

TEST(Segments, CutACellBehindItsLastBlankOrHard) {
    EXPECT_EQ(pieces(u""_s, 4), QStringList{u"    "_s});
    EXPECT_EQ(pieces(u"abcd"_s, 4), QStringList{u"abcd"_s});
    EXPECT_EQ(pieces(u"abcde"_s, 4), (QStringList{u"abcd"_s, u"e   "_s}));
    EXPECT_EQ(pieces(u"abc de"_s, 4), (QStringList{u"abc "_s, u"de  "_s}));
    EXPECT_EQ(pieces(u"a bcde"_s, 4), (QStringList{u"a   "_s, u"bcde"_s}));
    EXPECT_EQ(pieces(u"     x"_s, 4), (QStringList{u"    "_s, u" x  "_s}));
    EXPECT_EQ(pieces(u"xy"_s, 1), (QStringList{u"x"_s, u"y"_s}));
    EXPECT_EQ(pieces(u"abc\U0001F600"_s, 4), (QStringList{u"abc "_s, u"\U0001F600  "_s}));
}

TEST(Segments, CountPositionsAndNeverCutACharacter) {
    EXPECT_EQ(pieces(u"\u65E5\u672C\u8A9E"_s, 5), (QStringList{u"\u65E5\u672C "_s, u"\u8A9E   "_s}));
    EXPECT_EQ(pieces(u"\u65E5\u672C"_s, 4), QStringList{u"\u65E5\u672C"_s});
    EXPECT_EQ(pieces(u"e\u0301e\u0301e\u0301"_s, 2), (QStringList{u"e\u0301e\u0301"_s, u"e\u0301 "_s}));
    EXPECT_EQ(pieces(u"\u65E5 \u672Cabc"_s, 5), (QStringList{u"\u65E5   "_s, u"\u672Cabc"_s}));
    const QString family = u"\U0001F469\u200D\U0001F467"_s;
    EXPECT_EQ(pieces(family + family, 3), (QStringList{family + u' ', family + u' '}));
    // Nothing is left out where not even one character fits.
    EXPECT_EQ(pieces(u"\u65E5\u672C"_s, 1), (QStringList{u"\u65E5"_s, u"\u672C"_s}));
}

TEST(Segments, GiveAnEmptyPieceForAMissingLine) {
    Segments segments;
    EXPECT_EQ(segments.add(2, u"Tools"_s, 1, 8, 1).textLength, 5);
    EXPECT_EQ(segments.item(1, 2).segmentText, u"Tools   "_s);
    EXPECT_TRUE(segments.item(2, 2).segmentText.isEmpty());
    EXPECT_EQ(segments.count(), 1);
}

TEST(Listing, HoldsEveryCharacterOfACellInOrderAndInItsColumn) {
    QRandomGenerator random(7);
    for (int run = 0; run < 300; ++run) {
        const std::vector<GridColumn> columns{{u"A"_s, random.bounded(1, 20)}, {u"B"_s, random.bounded(1, 20)}};
        QStringList cells{{}, {}};
        for (QString& cell : cells) {
            for (int i = random.bounded(60); i > 0; --i)
                cell += QChar(random.bounded(5) == 0 ? u' ' : char16_t(u'a' + random.bounded(26)));
        }
        QStringList found{{}, {}};
        for (const QString& line : texts(columns, cells)) {
            ASSERT_EQ(line.size(), 10 + columns[0].width + 1 + columns[1].width + 1);
            found[0] += line.mid(10, columns[0].width);
            found[1] += line.mid(11 + columns[0].width, columns[1].width);
        }
        for (int i = 0; i < 2; ++i)
            EXPECT_EQ(found[i].remove(u' '), QString(cells[i]).remove(u' '));
    }
}

TEST(Listing, StandsInItsColumnsInEveryWriting) {
    const std::vector<GridColumn> columns{{u"A"_s, 8}, {u"B"_s, 6}, {u"C"_s, 3}};
    const QStringList writings{u"\u05E8\u05D7\u05DC \u05DB\u05D4\u05DF, 5"_s, u"\u65E5\u672C\u8A9E\u306E\u672C"_s,
                               u"\U0001F3E1\U0001F469\u200D\U0001F467\U0001F1EB\U0001F1F7 flat"_s, u"e\u0301te\u0301"_s,
                               u"\u0645\u062D\u0645\u062F"_s};
    for (const QString& first : writings) {
        for (const QString& second : writings) {
            QStringList found{{}, {}, {}};
            for (const ListingLine& line : listingLines(columns, {first, second, u"x && y"_s})) {
                EXPECT_EQ(platform::positionsOf(line.text), 10 + 9 + 7 + 4) << first.toStdString();
                for (const auto& [position, text] : line.cells) {
                    const int column = position == 10 ? 0 : position == 19 ? 1 : 2;
                    EXPECT_TRUE(column < 2 || position == 26);
                    EXPECT_LE(platform::positionsOf(text), columns[static_cast<std::size_t>(column)].width);
                    found[column] += text;
                }
                if (!line.cells.empty()) continue;
                EXPECT_TRUE(platform::isEven(line.text));
                found[0] += line.text.mid(10, 8).trimmed();
                found[1] += line.text.mid(19, 6).trimmed();
                found[2] += line.text.mid(26).trimmed();
            }
            EXPECT_EQ(found[0].remove(u' '), QString(first).remove(u' '));
            EXPECT_EQ(found[1].remove(u' '), QString(second).remove(u' '));
            EXPECT_EQ(found[2], u"x&y"_s);
        }
    }
    EXPECT_TRUE(listingLines(columns, {u"\u041A\u043E\u0442"_s, u"\u2018a\u2019"_s, {}})[0].cells.empty());
}

TEST(Listing, LosesTheEndOfACaptionAsLongAsItsColumn) {
    EXPECT_EQ(listingHeading({{u"Seq"_s, 5}, {u"Asset"_s, 5}, {u"Directions"_s, 4}}), u"          Seq   Asse  Dir  "_s);
    EXPECT_EQ(listingHeading({{u"Seq"_s, 1}}), u"            "_s);
}

TEST(Listing, KeepsItsColumnsWhateverACellHolds) {
    const std::vector<GridColumn> columns{{u"A"_s, 12}, {u"B"_s, 4}};
    EXPECT_EQ(texts(columns, {u"Tools && Dies"_s, u"x"_s}),
              (QStringList{u"          Tools &      x    "_s, u"          Dies              "_s}));
    EXPECT_EQ(texts(columns, {u"one\r\ntwo\tx"_s, u"y"_s}), QStringList{u"          one  two x   y    "_s});
}

TEST(Listing, GivesAColumnItsShareOfThePage) {
    EXPECT_EQ(listingWidth(6150, 10000), 49);
    EXPECT_EQ(listingWidth(10, 10000), 1);
    EXPECT_EQ(listingWidth(10, 0), 1);
}

TEST(Listing, WritesTitleHeadingAndRowsIntoAFile) {
    const PrintableGrid grid{
        .caption = u"Medical Log -- Ann"_s, .columns = {{u"Item"_s, 6}}, .walk = [](const auto& visit) {
            visit({u"Clock"_s});
            visit({u""_s});
        }};
    EXPECT_EQ(gridDocument(grid, QDate(2026, 3, 4)),
              u"          The Medical Log -- Ann Listing As Of 04-Mar-26\r\n\r\n"
              "          Item   \r\n\r\n"
              "          Clock  \r\n\r\n"
              "                 \r\n\r\n"_s);
}

TEST(ListingPages, AreFullWithTheirFiftyFirstLine) {
    QList<qsizetype> pages;
    ListingPages listing([&](const ListingPages::Page& page) { pages << std::ssize(page); });
    const ListingLine line{.text = u"line"_s};
    for (int row = 0; row < 30; ++row)
        listing.addRow({line});
    listing.finish();
    // 26 rows and 25 empty lines; the empty line behind the last row of a page is left out.
    EXPECT_EQ(pages, (QList<qsizetype>{51, 8}));
    pages.clear();
    listing.addRow(std::vector(60, line));
    listing.finish();
    EXPECT_EQ(pages, (QList<qsizetype>{51, 10}));
    pages.clear();
    listing.finish();
    EXPECT_TRUE(pages.isEmpty());
}

}  // namespace
