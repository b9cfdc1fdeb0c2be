#include "data/cipher.h"

#include <gtest/gtest.h>

#include "platform/base/windows1252.h"

using namespace Qt::StringLiterals;

namespace {

// What stands in families' files and has to stay readable. Worked out by cipher_bytes.py, which knows nothing of the
// program.
TEST(Cipher, GivesTheBytesThatStandInTheFiles) {
    struct {
        QString text;
        QByteArray bytes;
    } const cases[] = {
        {u""_s, ""},
        {u"PT"_s, "\xfe\xde"},
        {u"1234"_s, "\x9f\xb8\xa5\xa7"},
        {u"Quillstone"_s, "\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff"},
        {u"Bank PIN 0123456789 twice"_s,
         "\xec\xeb\xf8\xf8\xb3\xdc\xc2\xde\xb1\xaa\x9f\xb8\xa5\xa7\xa6\xba\xbc\xa8\xa8\xba\xda\xfd\xff\xf0\xf6"},
        // Beyond the letters of English any code can come out, those of line ends and of the end of a text too.
        {u"\u00DF\u20AC\u017E, \u00C6\u00F7!"_s, "\x71\x0a\x08\xbf\xb3\x4a\x7c\xb1"},
        {u"\u00AE\u0160\u2013"_s, QByteArray("\x00\x00\x00", 3)},
    };
    for (const auto& [text, bytes] : cases) {
        EXPECT_EQ(platform::toWindows1252(data::cipher(text)).toHex(), bytes.toHex()) << text.toStdString();
        EXPECT_EQ(data::cipher(platform::fromWindows1252(bytes)), text);
    }
    EXPECT_EQ(platform::toWindows1252(data::cipher(u"Hi"_s, u"Ab"_s)), "\xf6\xf4");
    // What the code page doesn't have becomes a question mark.
    EXPECT_EQ(platform::toWindows1252(data::cipher(u"caf\u0436"_s)), "\xcd\xeb\xf0\xac");
}

}  // namespace
