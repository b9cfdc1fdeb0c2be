#pragma once

#include <QByteArray>
#include <QString>

namespace data {

/// A text as the file holds it, with every byte of it: a mark at its start stays, and a byte that isn't UTF-8 becomes a
/// half character of its own, U+DC80 to U+DCFF, that no text has otherwise.
[[nodiscard]] QString textFromFile(QByteArrayView bytes);
/// The bytes that such a text was read from; plain UTF-8 for any other.
[[nodiscard]] QByteArray textToFile(const QString& text);

}  // namespace data
