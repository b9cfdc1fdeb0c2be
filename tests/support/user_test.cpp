#include <gtest/gtest.h>

#include "tests/support/line_protocol.h"
#include "tests/support/test_program.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

class UserTest : public ::testing::Test {
protected:
    UserTest() { user.start(); }

    User user{testProgram()};
    EventLog log{user};
};

TEST_F(UserTest, TypesEveryCharacter) {
    const QString text = u"Añ \"q\" (x) £€ 漢 \U0001F600"_s;
    user.fill(u"txtFields(0)"_s, text);
    EXPECT_EQ(user.text(u"txtFields(0)"_s), text);
}

}  // namespace

}  // namespace support
