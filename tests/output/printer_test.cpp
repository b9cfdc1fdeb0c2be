#include "platform/print/printer.h"

#include <gtest/gtest.h>

#include "platform/base/runtime_error.h"
#include "platform/print/print_device.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;

namespace {

class Paper : public platform::PrintDevice {
public:
    [[nodiscard]] platform::PageArea page() override { return {12240, 15840, 11520, 15120}; }
    void send(const platform::PrintJob& job) override { jobs.push_back(job); }
    std::vector<platform::PrintJob> jobs;
};

TEST(Printer, BreaksLinesAndGoesToTheStartOfTheNext) {
    Paper paper;
    platform::Printer printer(paper);
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
    platform::Printer printer(paper);
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

TEST(Printer, MeasuresTheWidestLine) {
    Paper paper;
    platform::Printer printer(paper);
    EXPECT_DOUBLE_EQ(printer.textWidth(u"ab\r\nabcde\U0001F600"_s), 6 * 120);
    printer.setFontSize(18);
    EXPECT_DOUBLE_EQ(printer.textWidth(u"a"_s), 216);
}

}  // namespace
