#pragma once

#include <QDate>
#include <QString>
#include <stop_token>

namespace data {

/// Keeps a copy of this day's database: Daily/FamilyInfo_2026-11-23.mdb in the folder of backups, which must be there,
/// unless it has one already. Seven of them stay. The secrets in it are enciphered.
///
/// It may run in a thread of its own while the book is open and written to: the copy is the book as it stood at one
/// moment. It bears its name only when it is whole and on the disk; what fails or is stopped leaves nothing behind, and
/// no older copy goes for it. True when the copy was made.
bool makeDailyCopy(const QString& live, const QString& backups, QDate today, const std::stop_token& stop) noexcept;

}  // namespace data
