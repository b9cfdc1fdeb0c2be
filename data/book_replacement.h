#pragma once

#include <QString>

#include "platform/base/unfinished.h"

namespace data {

class KeptBook;

/// Another book in the place of the family's: first the database file, then the attached files behind it.
///
/// The file that comes is checked, copied beside the live one, flushed and renamed over it: cut off at any moment it
/// leaves one of the two whole. A note beside it says from then on where the attached files are to come from, until all
/// of them are there; a run that dies in between leaves the note, and the next one can go on from it. Other runs of the
/// program find the folder claimed meanwhile and leave it alone.
///
/// Where the family has a folder of backups the book that goes is kept there (KeptBook), its attached files too: they
/// are moved instead of deleted.
class BookReplacement {
public:
    /// The live database, which nobody may have open while it is replaced, the folder of the attached files, and that
    /// of the backups, which need not be there.
    BookReplacement(const QString& live, QString attachments, QString backups);

    /// False when another run is at it.
    [[nodiscard]] bool isClaimed() const { return claim_.isHeld(); }

    /// Puts a copy of a checked database in the place of the live one. It is the whole copy, on the disk when this
    /// returns, or the file that was there before. `companion`: the folder from which replaceAttachments() is to take
    /// the files; none where it doesn't exist. Errors as checkDatabase() and files::copyFile(), 70 when another run is
    /// at it.
    void replaceDatabase(const QString& source, const QString& companion);
    /// The same for a live file that is missing or can't be used, which is kept beside the new one: FamilyInfo.mdb as
    /// FamilyInfo.damaged.mdb. An older one of that name gets a number. Attached files are left alone.
    void replaceLostDatabase(const QString& source);

    /// Takes all files out of the folder, which is made where it is missing, and copies those of the companion folder
    /// into it. What could be kept of the old book is given up if the new one's files have no room otherwise.
    /// Succeeding or not it is over then: the note goes.
    void replaceAttachments();

    /// What a run that died left undone: its attached files are not all in place. replaceAttachments() goes on from
    /// here.
    [[nodiscard]] bool isUnfinished() const;
    /// Where the files were to come from; empty for a book without any.
    [[nodiscard]] QString companion() const;
    /// Deletes half copies that dead runs left beside the live file, among the attachments and the backups.
    void discardRemains() const;

private:
    [[nodiscard]] QString successor() const { return place_ + QStringLiteral(".new"); }
    [[nodiscard]] QString note() const { return place_ + QStringLiteral(".restoring"); }
    void requireClaim() const;
    void copyCheckedToSuccessor(const QString& source, const QString& live) const;
    void writeNote(const QString& companion, const QString& kept) const;
    void discardNote() const;
    [[nodiscard]] QString noted(qsizetype part) const;
    [[nodiscard]] KeptBook kept() const;
    void forget(const KeptBook& kept) const;
    void bringFiles(const QString& from, const KeptBook& old) const;
    void discardJournal() const;
    void keepDamaged() const;
    void putSuccessorInPlace() const;

    QString place_;  ///< where the live file lies: a link to it stays a link
    QString attachments_;
    QString backups_;
    platform::files::FolderClaim claim_;
};

/// Deletes every file in the folder, read-only ones too; it need neither exist nor hold any.
void emptyFolder(const QString& folder);

}  // namespace data
