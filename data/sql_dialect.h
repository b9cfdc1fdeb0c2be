#pragma once

#include <QString>

namespace data {

/// A statement as the windows write it, in SQLite's spelling: the words True and False are turned into what a yes/no
/// column holds; nothing inside quotes is ever touched.
///
/// Throws RuntimeError -2147217900 for a text that holds a NUL, is empty, or goes on behind its closing
/// semicolon, and -2147217904 for a parameter, which none of the program's statements has.
[[nodiscard]] QString toSqlite(const QString& statement);

}  // namespace data
