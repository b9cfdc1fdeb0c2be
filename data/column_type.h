#pragma once

#include <QString>
#include <QVariant>
#include <optional>

#include "platform/base/record_source.h"

namespace data {

/// What a column's declaration says about the values that it takes.
struct ColumnType {
    platform::ColumnKind kind = platform::ColumnKind::Text;
    int maxLength = 0;  ///< characters; 0 without a limit
    int wholeBits = 0;  ///< 16 or 32 for whole numbers of that range, 0 for fractions
};

/// The type behind a declaration such as "TEXT(50)", "INTEGER" or "DATE". A counter is declared as an integer and
/// known only from its table.
[[nodiscard]] ColumnType declaredType(const QString& declaration);

/// A value as the file holds it (null, qint64, double, text or bytes) in the form of its column's kind.
[[nodiscard]] QVariant shownValue(const QVariant& stored, platform::ColumnKind kind);

/// A value set by a window in the form in which the file holds it. "" becomes Null on numbers and dates, Null becomes
/// false on a yes/no column. Throws RuntimeError -2147217887 for what doesn't fit the column.
[[nodiscard]] QVariant storedForm(const QVariant& value, const ColumnType& type);

}  // namespace data
