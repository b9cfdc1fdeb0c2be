#pragma once

#include <QString>
#include <optional>

namespace data {

class Connection;

// The secrets of the PIN lists in table PIN_Password: enciphered at rest, plain while their list is open. Each row is
// marked with which of both it is.

/// Account of the row that holds the password of a member's PIN list.
[[nodiscard]] inline QString protectedAccount() {
    return QStringLiteral("PINs And Passwords Screen");
}

/// Marks a row whose secret is plain at this moment. Enciphered, or anything else, it marks one whose secret is
/// enciphered.
[[nodiscard]] inline QString plainMark() {
    return QStringLiteral("PT");
}

/// Whether a secret is plain in any list.
[[nodiscard]] bool hasPlainPins(Connection& connection);

/// Enciphers the rows that are plain, of one member's list or of all. Throws the provider's errors; the rows behind the
/// one that failed stay plain.
void encipherPins(Connection& connection, std::optional<qint16> member = {});

/// The same for all lists of a database file that nobody has open. Throws as Connection::open() too.
void encipherFile(const QString& path);

/// Copies a database file, which may be open, to a backup in which no secret is plain. It is on the disk when this
/// returns, or the target is as it was. Gives the bytes that the copy has to have. Throws as files::copyFile().
[[nodiscard]] qint64 backUpDatabase(const QString& source, const QString& target);

}  // namespace data
