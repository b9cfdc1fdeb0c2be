#pragma once

#include <QString>

namespace data {

class Connection;

/// Deletes what belongs to one person: in every table with a PersonID, the rows that hold his number in it.
///
/// The file itself is asked for its tables and their columns, so that a table added later is covered; nothing else
/// cascades. Each table's delete stands by itself: when one fails (the provider's error is thrown), those before it
/// stay deleted. Rows without the column, such as attachments, stay.
void deletePersonsRows(Connection& connection, int id);

}  // namespace data
