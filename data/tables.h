#pragma once

#include <QStringView>
#include <span>

#include "data/table_definition.h"

namespace data {

/// Every table of the database file, in a fixed order.
std::span<const Table> allTables();

/// The table of that name, without regard to case. Throws std::out_of_range for a name that no table has.
const Table& table(QStringView name);

}  // namespace data
