#include "platform/base/windows1252.h"

#include <algorithm>
#include <array>

#include "platform/base/runtime_error.h"

namespace platform {

namespace {

/// Codes 128 to 159, the only ones that differ from Unicode. The five without a character of their own stand for the
/// control of the same number, so that no byte is lost.
constexpr std::array<char16_t, 32> special{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                           0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr int firstSpecial = 128;

QChar characterOf(int code) {
    const int index = code - firstSpecial;
    const bool isSpecial = index >= 0 && index < static_cast<int>(special.size());
    return isSpecial ? QChar(special[static_cast<std::size_t>(index)]) : QChar(static_cast<char16_t>(code));
}

std::optional<int> codeOf(QChar c) {
    if (c < u'\x80' || (c >= u'\xA0' && c <= u'\xFF')) return c.unicode();
    const auto found = std::find(special.begin(), special.end(), c.unicode());
    if (found == special.end()) return std::nullopt;
    return firstSpecial + static_cast<int>(found - special.begin());
}

}  // namespace

QByteArray toWindows1252(const QString& text, OutsideCodePage outside) {
    const bool plain = std::all_of(text.begin(), text.end(), [](QChar c) { return c < u'\x80'; });
    if (plain) return text.toLatin1();
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text) {
        const auto code = codeOf(c);
        if (!code && outside == OutsideCodePage::Refuse) throw RuntimeError(Error::InvalidCall);
        bytes.append(static_cast<char>(code.value_or('?')));
    }
    return bytes;
}

std::optional<QString> firstOutsideCodePage(const QString& text) {
    const auto found = std::find_if(text.begin(), text.end(), [](QChar c) { return !codeOf(c); });
    if (found == text.end()) return std::nullopt;
    const qsizetype at = found - text.begin();
    const bool isPair = found->isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    return text.sliced(at, isPair ? 2 : 1);
}

QString fromWindows1252(const QByteArray& bytes) {
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text.append(characterOf(static_cast<unsigned char>(byte)));
    return text;
}

}  // namespace platform
