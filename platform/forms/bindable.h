#pragma once

#include <QString>
#include <QVariant>

#include "platform/base/record_source.h"

namespace platform {

/// A control that can show one column of a recordset.
class Bindable {
public:
    virtual ~Bindable() = default;

    /// Shows a column's value through its display format; an invalid QVariant shows as empty.
    virtual void showValue(const QVariant& value, ColumnKind kind, const QString& format) = 0;
    /// What stands in the control, to tell whether it was altered since it was shown.
    [[nodiscard]] virtual QVariant content() const = 0;
};

}  // namespace platform
