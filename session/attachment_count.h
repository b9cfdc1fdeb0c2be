#pragma once

#include <QString>

namespace data {
class Connection;
class Recordset;
}  // namespace data

namespace session {

/// "Attachments: " and the number of files that are kept under an attachment key. `lookup`: a recordset for the
/// question, which it leaves open. Throws the provider's errors.
[[nodiscard]] QString attachmentCount(data::Recordset& lookup, data::Connection& connection, const QString& key);

}  // namespace session
