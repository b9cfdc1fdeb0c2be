#pragma once

#include <QString>

/// What is done with whole database files and the folder of attached files that goes with each: sizes, checks, copies.
namespace data {

/// The folder that holds the attachments of a backed-up database: beside it, with its name up to the last dot and
/// "Attachments" behind that. Error 6 for a name without a dot, or whose last dot stands in the path's folder.
[[nodiscard]] QString companionFolder(const QString& databasePath);

/// Bytes as kilobytes with two decimals, halves to the even neighbour.
[[nodiscard]] double kilobytes(qint64 bytes);

/// Both paths lead to one existing file.
[[nodiscard]] bool isSameFile(const QString& path, const QString& other);

/// Error 70 when one of two folders, which need not exist, is the other or lies in it: emptying the one before it takes
/// the other's files would lose them.
void requireApart(const QString& folder, const QString& other);

/// Reads a file through without changing it or anything beside it. Throws RuntimeError -2147467259, with words that
/// say what is wrong, for one that is empty, foreign, cut short, damaged, written by a newer version of the program, or
/// lacks a table; 53 for a missing file, 70 for an unreadable one.
void checkDatabase(const QString& path);

/// Puts a copy of a checked database in the place of the live one, which nobody may have open. It is the whole copy, on
/// the disk when this returns, or the file that was there before. Throws as checkDatabase() and files::copyFile().
void replaceDatabase(const QString& source, const QString& live);

/// Deletes what a run that died while it restored left beside the live file and among the attachments.
void discardUnfinishedRestore(const QString& live, const QString& attachments);

/// Deletes every file in the folder, read-only ones too; it need neither exist nor hold any.
void emptyFolder(const QString& folder);

}  // namespace data
