#pragma once

#include <QString>
#include <vector>

#include "data/table_definition.h"

namespace data {

/// The columns of a table as they stand in the file: the keys, then all others that are stored.
std::vector<Column> storedColumns(const Table& table);

/// The statement that makes the table. The declared types carry the kinds, which is how they are read back from a file:
/// INTEGER, DOUBLE, TEXT(n) or TEXT, LONGTEXT, DATE (ISO text), BOOLEAN (-1 and 0).
QString createStatement(const Table& table);

/// The statements that make the table's indexes; none for a table that is small for good.
std::vector<QString> indexStatements(const Table& table);

}  // namespace data
