#pragma once

#include <QString>

namespace data {

/// Writes the empty database file that a household starts from: every table and index, no row but the state names.
///
/// The file stands complete at `path` or not at all; one that was there is replaced. Throws as files::FileReplacement,
/// or SQLite::Exception.
void createTemplate(const QString& path);

}  // namespace data
