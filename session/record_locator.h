#pragma once

#include <QString>
#include <map>
#include <memory>
#include <optional>
#include <span>

#include "data/row_scan.h"
#include "session/shown_rows.h"

namespace session {

/// Where a record stands: the window that shows it, and whose it is.
struct Location {
    const ShownRows* shown = nullptr;
    qint16 member = 0;  ///< 0: nobody's in particular
    qint64 site = 0;    ///< ID of the site that it hangs on
};

/// Finds records by table and ID. It keeps what it has prepared for the next one, and nothing of the file.
class RecordLocator {
public:
    /// `all` is kept; it has to live longer.
    RecordLocator(data::Connection& connection, std::span<const ShownRows> all) : connection_(connection), all_(all) {}

    /// Nullopt for a record that isn't there, and for one that no window shows. Throws the provider's errors.
    [[nodiscard]] std::optional<Location> locate(const data::Table& table, qint64 record);

private:
    /// Member, type and site of the row with an ID; zeros where the table has no such column.
    [[nodiscard]] data::RowScan& rowOf(const data::Table& table);

    data::Connection& connection_;
    std::span<const ShownRows> all_;
    std::map<const data::Table*, std::unique_ptr<data::RowScan>> rows_;
};

}  // namespace session
