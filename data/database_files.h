#pragma once

#include <QString>
#include <QStringList>

/// What is done with whole database files and the folder of attached files that goes with each: names and sizes.
namespace data {

/// The folder that holds the attachments of a backed-up database: beside it, with its name up to the last dot and
/// "Attachments" behind that. Error 6 for a name without a dot, or whose last dot stands in the path's folder.
[[nodiscard]] QString companionFolder(const QString& databasePath);

/// Bytes as kilobytes with two decimals, halves to the even neighbour.
[[nodiscard]] double kilobytes(qint64 bytes);

/// Of names that sort by their dates those that have to go for the newest `count` to stay, the oldest first. Those in
/// `staying` stay as well, and count: a name that a wrong clock gave is not taken for an old one right away.
[[nodiscard]] QStringList beyondNewest(QStringList names, qsizetype count, const QStringList& staying);

/// Error 70 when one of two folders, which need not exist, is the other or lies in it: emptying the one before it takes
/// the other's files would lose them.
void requireApart(const QString& folder, const QString& other);

}  // namespace data
