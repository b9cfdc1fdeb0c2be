#include "platform/print/printer.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"
#include "platform/print/page_scale.h"
#include "platform/print/print_device.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;

namespace {

class Paper : public platform::PrintDevice {
public:
    [[nodiscard]] platform::PageArea page() override { return sheet; }
    void send(const platform::PrintJob& job, const QString& title) override {
        jobs.push_back(job);
        titles << title;
    }
    platform::PageArea sheet{12240, 15840, 11520, 15120};
    std::vector<platform::PrintJob> jobs;
    QStringList titles;
};

TEST(Printer, BreaksLinesAndGoesToTheStartOfTheNext) {
    Paper paper;
    platform::Printer printer(paper, u"A job"_s);
    printer.setCurrentX(1000);
    printer.setCurrentY(1440);
    printer.print(u"a\r\nb\rc\nd"_s);
    printer.setFontSize(20);
    printer.print(u"big"_s);
    printer.print(u"e"_s);
    printer.endDoc();
    ASSERT_EQ(paper.jobs.size(), 1U);
    const platform::PrintedPage& page = paper.jobs[0].at(0);
    ASSERT_EQ(page.size(), 6U);
    const double line = 226.5625;
    const double down[] = {0, line, 2 * line, 3 * line, 4 * line, 6 * line};
    for (std::size_t i = 0; i < page.size(); ++i) {
        EXPECT_DOUBLE_EQ(page[i].y, 1440 + down[i]);
        EXPECT_DOUBLE_EQ(page[i].x, i == 0 ? 1000 : 0);
    }
    EXPECT_EQ(page[4].size, 20);
}

TEST(Printer, FlowsToTheNextPageAndSendsNoEmptyOne) {
    Paper paper;
    platform::Printer printer(paper, u"A job"_s);
    printer.endDoc();
    printer.setCurrentX(5);
    printer.endDoc();
    EXPECT_TRUE(paper.jobs.empty());
    // 66 lines fill the printable 15,120 twips.
    printer.print(u"x\r\n"_s.repeated(66) + u"67"_s);
    printer.endDoc();
    printer.print(u"x"_s);
    printer.newPage();
    printer.endDoc();
    printer.print(u"x\r\n"_s.repeated(66));
    printer.endDoc();
    ASSERT_EQ(paper.jobs.size(), 3U);
    ASSERT_EQ(paper.jobs[0].size(), 2U);
    EXPECT_EQ(paper.jobs[0][1][0].text, u"67"_s);
    EXPECT_EQ(paper.jobs[0][1][0].y, 0);
    EXPECT_EQ(paper.jobs[1].size(), 1U);
    EXPECT_EQ(paper.jobs[2].size(), 1U);
}

TEST(Printer, ShrinksThePageOntoASmallSheet) {
    const platform::PageArea sheets[] = {{12240, 15840, 11520, 15120},
                                         {12240, 15840, 10800, 14400},
                                         {11906, 16838, 10466, 15398},
                                         {15840, 12240, 15120, 11520}};
    EXPECT_EQ(platform::pageScale(sheets[0]), 1);
    for (const platform::PageArea& sheet : sheets) {
        Paper paper;
        paper.sheet = sheet;
        platform::Printer printer(paper, u"A job"_s);
        printer.printBeside({{0, u"left"_s}, {10800, u"right"_s}});
        printer.setCurrentY(14400);
        printer.print(u"-1-"_s);
        printer.endDoc();
        EXPECT_EQ(paper.titles, QStringList{u"A job"_s});
        ASSERT_EQ(paper.jobs.at(0).size(), 1U);
        ASSERT_EQ(paper.jobs[0][0].size(), 3U);
        EXPECT_EQ(paper.jobs[0][0][1].y, 0);
        const double scale = platform::pageScale(sheet);
        EXPECT_LE(scale * (14400 + 226.5625), sheet.scaleHeight + 1e-6);
        EXPECT_LE(scale * 92 * 120, sheet.scaleWidth + 1e-6);
        EXPECT_DOUBLE_EQ(printer.width() * scale, sheet.width);
    }
}

TEST(Printer, MeasuresTheWidestLine) {
    Paper paper;
    platform::Printer printer(paper, u"A job"_s);
    EXPECT_DOUBLE_EQ(printer.textWidth(u"ab\r\nabcde\U0001F600"_s), 7 * 120);
    EXPECT_DOUBLE_EQ(printer.textWidth(u"e\u0301\u65E5"_s), 3 * 120);
    printer.setFontSize(18);
    EXPECT_DOUBLE_EQ(printer.textWidth(u"a"_s), 216);
}

}  // namespace
