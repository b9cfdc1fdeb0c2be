#include "data/cipher.h"

#include "platform/base/runtime_error.h"
#include "platform/base/windows1252.h"

using namespace Qt::StringLiterals;

namespace data {

QString cipher(const QString& text, const QString& key) {
    if (key.isEmpty() && !text.isEmpty()) throw platform::RuntimeError(platform::Error::InvalidCall);
    const QByteArray keyBytes = platform::toWindows1252(key);
    QByteArray bytes = platform::toWindows1252(text);
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const int complemented = static_cast<uchar>(keyBytes.at(i % keyBytes.size())) ^ 0xFF;
        bytes[i] = static_cast<char>(static_cast<uchar>(bytes.at(i)) ^ complemented);
    }
    return platform::fromWindows1252(bytes);
}

QString cipher(const QString& text) {
    return cipher(text, u"Quillstone"_s);
}

}  // namespace data
