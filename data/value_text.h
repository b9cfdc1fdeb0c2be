#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

namespace data {

/// A value as plain text, the same in every region: numbers by at most 15 digits, dates as M/d/yyyy, truth as True and
/// False.
[[nodiscard]] QString plainText(const QVariant& value);
/// The number or date of such a text, or one as it is written in the United States; RuntimeError -2147217887 for a text
/// that is none.
[[nodiscard]] double numberFromText(const QString& text);
[[nodiscard]] QDateTime dateFromText(const QString& text);

}  // namespace data
