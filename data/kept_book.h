#pragma once

#include <QString>

namespace data {

/// A book that another one replaces, kept beside the family's backups as a pair of their kind:
/// Before_2026-11-23_214530.mdb and Before_2026-11-23_214530Attachments. Its secrets are enciphered.
///
/// It is a net under the replacement and no part of it: what can't be kept is passed over.
class KeptBook {
public:
    /// The one of that name in the folder of backups; none for a name that no such pair can have.
    KeptBook(QString backups, const QString& name);
    /// One that bears this moment's name, which is free. None where the folder of backups isn't there, which is never
    /// made here, or lies among the attached files.
    [[nodiscard]] static KeptBook ofNow(const QString& backups, const QString& attachments);

    /// "Before_2026-11-23_214530"; empty for none.
    [[nodiscard]] const QString& name() const { return name_; }
    /// Its database is there.
    [[nodiscard]] bool isKept() const;

    /// Copies the database that is about to be replaced.
    void keepDatabase(const QString& live) const noexcept;
    /// Undoes that, for the database has not been replaced.
    void forgetDatabase() const noexcept;
    /// Moves the attached files to the kept database, as far as they can be moved; once. A run that dies among them
    /// leaves the rest to the next call.
    void takeFiles(const QString& attachments) const noexcept;
    /// Deletes the pair.
    void discard() const noexcept;
    /// Deletes the oldest pairs beside this one, until three are left. The one with this companion folder isn't
    /// touched.
    void discardOldest(const QString& companion) const noexcept;

private:
    [[nodiscard]] QString database() const;
    [[nodiscard]] QString companion() const;
    /// What the folder of the files is called until all of them are in it.
    [[nodiscard]] QString companionInTheMaking() const;

    QString backups_;
    QString name_;
};

}  // namespace data
