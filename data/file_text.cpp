#include "data/file_text.h"

#include <QStringDecoder>
#include <QUtf8StringView>
#include <algorithm>

namespace data {

namespace {

constexpr char16_t firstByteSign = 0xDC80;
constexpr char16_t lastByteSign = 0xDCFF;
constexpr char16_t byteSigns = 0xDC00;
constexpr qsizetype longestCharacter = 4;

QString decode(QByteArrayView bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

bool isUtf8(QByteArrayView bytes) {
    return QUtf8StringView(bytes.data(), bytes.size()).isValidUtf8();
}

/// Bytes of the character at the start; 0 if there is none.
qsizetype characterLength(QByteArrayView bytes) {
    for (qsizetype length = 1; length <= std::min(longestCharacter, bytes.size()); ++length) {
        if (isUtf8(bytes.first(length))) return length;
    }
    return 0;
}

}  // namespace

QString textFromFile(QByteArrayView bytes) {
    if (isUtf8(bytes)) return decode(bytes);
    QString text;
    while (!bytes.isEmpty()) {
        const qsizetype length = characterLength(bytes);
        if (length > 0) {
            text += decode(bytes.first(length));
        } else {
            text += QChar(static_cast<char16_t>(byteSigns + static_cast<uchar>(bytes.front())));
        }
        bytes = bytes.sliced(std::max<qsizetype>(length, 1));
    }
    return text;
}

QByteArray textToFile(const QString& text) {
    if (text.isValidUtf16()) return text.toUtf8();
    QByteArray bytes;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar sign = text[at];
        const bool isPair = sign.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        if (!isPair && sign >= QChar(firstByteSign) && sign <= QChar(lastByteSign)) {
            bytes += static_cast<char>(sign.unicode() - byteSigns);
        } else {
            bytes += text.mid(at, isPair ? 2 : 1).toUtf8();
        }
        if (isPair) ++at;
    }
    return bytes;
}

}  // namespace data
