#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace platform {

/// What becomes of a character that the single-byte code page doesn't have.
enum class OutsideCodePage { QuestionMark, Refuse };

/// One byte a character; with Refuse, error 5 for a character outside the code page.
[[nodiscard]] QByteArray toWindows1252(const QString& text, OutsideCodePage outside = OutsideCodePage::QuestionMark);

/// The first character of a text that the code page doesn't have, whole; nullopt when it has them all.
[[nodiscard]] std::optional<QString> firstOutsideCodePage(const QString& text);

/// The text of single-byte data: all 256 bytes survive the way there and back.
[[nodiscard]] QString fromWindows1252(const QByteArray& bytes);

}  // namespace platform
