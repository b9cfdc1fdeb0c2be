#pragma once

#include <QString>

#include "data/connection.h"

// Whether a file is a book of this program, before it is opened for work or takes the place of one.

namespace data {

/// Reads a file through without changing it or anything beside it. Throws NoDatabase, with words that say what is
/// wrong, for one that is empty, foreign, cut short, damaged, written by a newer version of the program, or lacks a
/// table or a column; 53 for a missing file, 70 for an unreadable one.
void checkDatabase(const QString& path);

/// Throws NoDatabase, with words that say what is missing, where the open file lacks one of the program's tables, as a
/// table, or a column of one. No row is read: what a foreign file holds in their place may never end.
void checkTables(const Connection& connection);

}  // namespace data
