#pragma once

#include <QString>

#include "data/recordset.h"

namespace app {

/// The host's look-ups in the family's file, one at a time.
class HostRows {
public:
    explicit HostRows(data::Connection& connection);

    /// Rows behind "SELECT Count(*) from" and the given text.
    [[nodiscard]] qint64 count(const QString& counted);
    /// The rows of a statement, the first one current. They stand until the next look-up, which nobody may make while
    /// he reads them.
    [[nodiscard]] data::Recordset& select(const QString& statement);

private:
    data::Connection& connection_;
    data::Recordset rsHost_;
};

}  // namespace app
