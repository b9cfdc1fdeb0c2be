#include "output/book_pages.h"

#include <gtest/gtest.h>

#include "output/contents.h"
#include "platform/base/text_positions.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;

namespace {

constexpr platform::PageArea letter{12240, 15840, 11520, 15120};
/// What a document has of a page below the empty lines at its beginning.
constexpr int linesOfDocument = 56;

QString document(const QString& name, int lines) {
    QString text = u"\r\n"_s.repeated(6);
    for (int i = 1; i <= lines; ++i)
        text += u"%1 %2\r\n"_s.arg(name).arg(i);
    return text + u"\r\n"_s;
}

struct Laid {
    QStringList pages{};  ///< each as its texts: heading, first and last line, number
    double lowest = 0;
    int count = 0;
};

/// Lays documents out under headings: "A/30" is one of 30 lines under A.
Laid laidOut(const QStringList& documents) {
    Laid laid;
    output::BookPages pages(letter, [&](const platform::PrintedPage& page) {
        laid.pages << u"%1: %2 .. %3 %4"_s.arg(page.front().text, page[1].text, page[page.size() - 2].text,
                                               page.back().text);
        laid.lowest = std::max(laid.lowest, page[page.size() - 2].y);
        EXPECT_LT(page.front().y, page[1].y);
    });
    output::BookPages counted(letter);
    QString heading;
    for (const QString& each : documents) {
        const QStringList parts = each.split(u'/');
        for (output::BookPages* book : {&pages, &counted}) {
            if (parts[0] != heading) book->begin(parts[0]);
            book->addDocument(document(parts[0].toLower(), parts[1].toInt()));
        }
        heading = parts[0];
    }
    pages.finish();
    counted.finish();
    EXPECT_EQ(counted.count(), pages.count());
    laid.count = pages.count();
    return laid;
}

TEST(BookPages, ADocumentStaysWholeWhereItFitsOnAPage) {
    EXPECT_EQ(laidOut({u"A/20"_s, u"A/20"_s, u"A/20"_s, u"B/1"_s}).pages,
              (QStringList{u"A: a 1 .. a 20 -1-"_s, u"A: a 1 .. a 20 -2-"_s, u"B: b 1 .. b 1 -3-"_s}));
    const Laid full = laidOut({u"A/%1"_s.arg(linesOfDocument)});
    EXPECT_EQ(full.count, 1);
    EXPECT_LT(full.lowest, 14400 - 226);
}

TEST(BookPages, ALongDocumentGoesOnUnderItsHeading) {
    EXPECT_EQ(laidOut({u"A/3"_s, u"A/120"_s, u"A/2"_s}).pages,
              (QStringList{u"A: a 1 .. a 3 -1-"_s, u"A: a 1 .. a 56 -2-"_s, u"A: a 57 .. a 112 -3-"_s,
                           u"A: a 113 .. a 2 -4-"_s}));
}

TEST(Contents, LinesEndAtOneColumnWithTheirPages) {
    const std::vector<output::BookEntry> entries{
        {0, u"Assets"_s, 3}, {1, u"\u65E5\u672C Zo\u00EB"_s, 12}, {4, u"A very long name "_s.repeated(9), 1234}};
    QStringList lines;
    for (const auto& [line, leads] : output::contentsLines(u"Family Book for Ann"_s, entries, {2026, 1, 15}))
        lines << line.text;
    lines.remove(0, 6);
    EXPECT_EQ(lines.mid(0, 3), (QStringList{u"     The Family Book for Ann"_s, u"     For 15-Jan-26"_s, {}}));
    EXPECT_EQ(lines[3], u"      Assets "_s + QString(65, u'.') + u" 3"_s);
    EXPECT_TRUE(lines[4].startsWith(u"         \u65E5\u672C Zo\u00EB .."_s));
    EXPECT_TRUE(lines[5].endsWith(u" ... 1234"_s)) << lines[5].toStdString();
    for (const QString& line : lines.mid(3, 3))
        EXPECT_EQ(platform::positionsOf(line), 80) << line.toStdString();
}

TEST(Contents, ANumberStaysAtTheEndBehindATitleFromRightToLeft) {
    std::vector<std::pair<double, QString>> texts;
    output::BookPages pages(letter, [&](const platform::PrintedPage& page) {
        for (const platform::PrintedLine& line : page)
            texts.emplace_back(line.x / 120, line.text);
    });
    pages.begin(u"Contents"_s);
    pages.addContents(output::contentsLines(u"Book"_s, {{1, u"\u05E8\u05D7\u05DC"_s, 12}}, {2026, 1, 15}));
    pages.finish();
    ASSERT_EQ(texts.size(), 6U);
    EXPECT_EQ(texts[3].second, u"\u05E8\u05D7\u05DC"_s);
    EXPECT_NEAR(texts[3].first, 9, 0.1);
    EXPECT_EQ(texts[4].second, QString(64, u'.') + u" 12"_s);
    EXPECT_NEAR(texts[4].first, 13, 0.1);
}

TEST(Contents, NoPageEndsWithWhatLeadsToTheNext) {
    const struct {
        int before;
        QString last, first;
    } table[] = {{50, u"Stocks"_s, u"Ann"_s}, {51, u"entry 50"_s, u"Assets"_s}, {52, u"entry 51"_s, u"Assets"_s}};
    for (const auto& row : table) {
        std::vector<output::BookEntry> entries;
        for (int i = 0; i < row.before; ++i)
            entries.push_back({0, u"entry %1"_s.arg(i), 1});
        entries.insert(entries.end(),
                       {{0, u"Assets"_s, 1}, {1, u"Banking"_s, 1}, {2, u"Stocks"_s, 1}, {2, u"Ann"_s, 2}});
        std::vector<platform::PrintedPage> all;
        output::BookPages pages(letter, [&](const platform::PrintedPage& page) { all.push_back(page); });
        pages.begin(u"Contents"_s);
        pages.addContents(output::contentsLines(u"Book"_s, entries, {2026, 1, 15}));
        pages.finish();
        ASSERT_EQ(all.size(), 2U);
        EXPECT_TRUE(all[0][all[0].size() - 2].text.contains(row.last)) << all[0][all[0].size() - 2].text.toStdString();
        EXPECT_TRUE(all[1][1].text.contains(row.first)) << all[1][1].text.toStdString();
    }
}

}  // namespace
