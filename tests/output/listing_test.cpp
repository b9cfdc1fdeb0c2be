#include "output/listing.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>

#include "output/segments.h"
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
        const QStringList lines = listingLines(columns, cells);
        for (const QString& line : lines) {
            ASSERT_EQ(line.size(), 10 + columns[0].width + 1 + columns[1].width + 1);
            found[0] += line.mid(10, columns[0].width);
            found[1] += line.mid(11 + columns[0].width, columns[1].width);
        }
        for (int i = 0; i < 2; ++i)
            EXPECT_EQ(found[i].remove(u' '), QString(cells[i]).remove(u' '));
    }
}

TEST(Listing, LosesTheEndOfACaptionAsLongAsItsColumn) {
    EXPECT_EQ(listingHeading({{u"Seq"_s, 5}, {u"Asset"_s, 5}, {u"Directions"_s, 4}}), u"          Seq   Asse  Dir  "_s);
    EXPECT_EQ(listingHeading({{u"Seq"_s, 1}}), u"            "_s);
}

TEST(Listing, KeepsItsColumnsWhateverACellHolds) {
    const std::vector<GridColumn> columns{{u"A"_s, 12}, {u"B"_s, 4}};
    EXPECT_EQ(listingLines(columns, {u"Tools && Dies"_s, u"x"_s}),
              (QStringList{u"          Tools &      x    "_s, u"          Dies              "_s}));
    EXPECT_EQ(listingLines(columns, {u"one\r\ntwo\tx"_s, u"y"_s}), QStringList{u"          one  two x   y    "_s});
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
    ListingPages listing([&](const QString& text) { pages << text.count(u"\r\n"_s); });
    for (int row = 0; row < 30; ++row)
        listing.addRow({u"row"_s});
    listing.finish();
    // 26 rows and 25 empty lines; the empty line behind the last row of a page is left out.
    EXPECT_EQ(pages, (QList<qsizetype>{51, 8}));
    pages.clear();
    listing.addRow(QStringList(60, u"line"_s));
    listing.finish();
    EXPECT_EQ(pages, (QList<qsizetype>{51, 10}));
    pages.clear();
    listing.finish();
    EXPECT_TRUE(pages.isEmpty());
}

}  // namespace
