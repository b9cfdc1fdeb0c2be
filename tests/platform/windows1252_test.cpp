#include "platform/base/windows1252.h"

#include <gtest/gtest.h>

#include "tests/platform/error_number.h"

using namespace Qt::StringLiterals;

namespace platform {
namespace {

using test::errorNumber;

TEST(Windows1252, AllBytesSurviveBothWays) {
    QByteArray bytes;
    for (int code = 0; code < 256; ++code)
        bytes.append(static_cast<char>(code));
    const QString text = fromWindows1252(bytes);
    EXPECT_EQ(text.size(), 256);
    EXPECT_EQ(toWindows1252(text, OutsideCodePage::Refuse), bytes);
}

TEST(Windows1252, DiffersFromLatin1InItsMiddle) {
    struct {
        int code;
        char16_t unicode;
    } const cases[] = {
        {65, u'A'},   {127, 0x7F},  {128, 0x20AC}, {129, 0x81},   {130, 0x201A}, {133, 0x2026}, {141, 0x8D},
        {142, 0x17D}, {143, 0x8F},  {144, 0x90},   {145, 0x2018}, {148, 0x201D}, {150, 0x2013}, {153, 0x2122},
        {157, 0x9D},  {158, 0x17E}, {159, 0x178},  {160, 0xA0},   {255, 0xFF},
    };
    for (const auto& [code, unicode] : cases)
        EXPECT_EQ(fromWindows1252(QByteArray(1, static_cast<char>(code))), QString(QChar(unicode))) << code;
}

TEST(Windows1252, RefusesOrReplacesWhatItCannotHold) {
    EXPECT_EQ(toWindows1252(u"a\u0416b"_s), "a?b");
    EXPECT_EQ(errorNumber([] { return toWindows1252(u"a\u0416b"_s, OutsideCodePage::Refuse); }), 5);
    // The places of 128 to 159 that belong to other characters: their controls are no part of the page.
    EXPECT_EQ(toWindows1252(u"\u0080"_s), "?");
}

}  // namespace
}  // namespace platform
