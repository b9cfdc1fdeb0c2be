#include "data/book_replacement.h"

#include <QFile>
#include <QFileInfo>

#include "data/book_check.h"
#include "data/kept_book.h"
#include "data/provider_error.h"
#include "platform/base/file_identity.h"
#include "platform/base/file_replacement.h"
#include "platform/base/files.h"
#include "platform/base/folder_entries.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace data {

namespace {

QString placeOf(const QString& live) {
    const QFileInfo info(live);
    return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

/// Undoes a step at the end of its scope unless it was kept.
template <class Undo>
class Unless {
public:
    explicit Unless(Undo undo) : undo_(std::move(undo)) {}
    ~Unless() {
        if (!kept_) undo_();
    }
    Unless(const Unless&) = delete;
    Unless& operator=(const Unless&) = delete;

    void keep() { kept_ = true; }

private:
    Undo undo_;
    bool kept_ = false;
};

/// "FamilyInfo.damaged.mdb", or with a number "FamilyInfo.damaged.2.mdb".
QString damagedName(const QString& place, int number = 0) {
    const QFileInfo info(place);
    const QString counted = number > 0 ? u".%1"_s.arg(number) : QString();
    return files::join(info.absolutePath(), u"%1.damaged%2.%3"_s.arg(info.completeBaseName(), counted, info.suffix()));
}

const QString journalEnding = u"-journal"_s;

/// An older file of that name, which may be all that is left of somebody's records, makes room.
void makeRoomFor(const QString& kept, const QString& place) {
    if (!files::isTaken(kept)) return;
    int number = 1;
    while (files::isTaken(damagedName(place, number)))
        ++number;
    files::moveFile(kept, damagedName(place, number));
    if (files::isTaken(kept + journalEnding))
        files::moveFile(kept + journalEnding, damagedName(place, number) + journalEnding);
}

}  // namespace

BookReplacement::BookReplacement(const QString& live, QString attachments, QString backups)
    : place_(placeOf(live)),
      attachments_(std::move(attachments)),
      backups_(std::move(backups)),
      claim_(QFileInfo(place_).absolutePath()) {}

void BookReplacement::requireClaim() const {
    if (!isClaimed()) throw RuntimeError(Error::PermissionDenied);
}

// Database ---------------------------------------------------------------------------------------------------------

void BookReplacement::replaceDatabase(const QString& source, const QString& companion) {
    requireClaim();
    if (files::isSameFile(source, place_)) throw RuntimeError(Error::PermissionDenied);
    checkDatabase(source);
    if (files::fileExists(place_) && files::isReadOnly(place_)) throw RuntimeError(Error::PermissionDenied);
    const Unless successorGoes([this] { QFile::remove(successor()); });
    copyCheckedToSuccessor(source, place_);
    const KeptBook kept = KeptBook::ofNow(backups_, attachments_);
    // A note without a successor says that the new file has its place: the note goes before it.
    Unless nothingBegan([&] { forget(kept); });
    writeNote(companion, kept.name());
    // Last of all, so that the new file has its room first.
    kept.keepDatabase(place_);
    discardJournal();
    putSuccessorInPlace();
    nothingBegan.keep();
}

void BookReplacement::replaceLostDatabase(const QString& source) {
    requireClaim();
    if (files::isSameFile(source, place_)) throw RuntimeError(Error::PermissionDenied);
    checkDatabase(source);
    const Unless successorGoes([this] { QFile::remove(successor()); });
    copyCheckedToSuccessor(source, place_);
    keepDamaged();
    discardJournal();
    putSuccessorInPlace();
}

void BookReplacement::copyCheckedToSuccessor(const QString& source, const QString& live) const {
    QFile::remove(successor());
    if (files::fileExists(live)) {
        // Who might read the old book may read the new one, and nobody else.
        constexpr unsigned ownersWriting = 0200;
        files::copyFileWithMode(source, successor(), files::modeOf(live) | ownersWriting);
        return;
    }
    files::copyFile(source, successor());
    // A backup on a medium that can't be written must not make a database that can't be.
    files::setReadOnly(successor(), false);
}

/// A journal left by a run that died belongs to the file that goes: left beside the new one it would be played into it.
void BookReplacement::discardJournal() const {
    for (const auto& ending : {journalEnding, u"-wal"_s, u"-shm"_s}) {
        if (files::fileExists(place_ + ending)) files::deleteFile(place_ + ending, true);
    }
}

void BookReplacement::keepDamaged() const {
    if (!files::isTaken(place_)) return;
    const QString kept = damagedName(place_);
    makeRoomFor(kept, place_);
    if (files::isTaken(place_ + journalEnding)) files::moveFile(place_ + journalEnding, kept + journalEnding);
    files::keepUnder(place_, kept);
    files::syncFolder(QFileInfo(place_).absolutePath());
}

void BookReplacement::putSuccessorInPlace() const {
    files::moveFile(successor(), place_);
    files::settleFolder(QFileInfo(place_).absolutePath());
}

// Note -------------------------------------------------------------------------------------------------------------

// A path, and behind a null, which none can hold, the name of the book that is kept.

void BookReplacement::writeNote(const QString& companion, const QString& kept) const {
    const bool exists = files::folderExists(companion);
    const QByteArray from = exists ? QFileInfo(companion).absoluteFilePath().toUtf8() : QByteArray();
    files::FileReplacement file(note());
    file.write(kept.isEmpty() ? from : from + '\0' + kept.toUtf8());
    file.place();
    files::syncFolder(file.folder());
}

void BookReplacement::discardNote() const {
    if (QFile::remove(note())) files::settleFolder(QFileInfo(place_).absolutePath());
}

bool BookReplacement::isUnfinished() const {
    return files::fileExists(note());
}

QString BookReplacement::noted(qsizetype part) const {
    QFile file(note());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll().split('\0').value(part)) : QString();
}

QString BookReplacement::companion() const {
    return noted(0);
}

KeptBook BookReplacement::kept() const {
    return {backups_, noted(1)};
}

// Attached files ---------------------------------------------------------------------------------------------------

void BookReplacement::replaceAttachments() {
    const Unless over([this] { discardNote(); });
    const QString from = companion();
    const KeptBook old = kept();
    files::makeFolder(attachments_);
    old.takeFiles(attachments_);
    if (!from.isEmpty() && !files::folderExists(from)) throw RuntimeError(Error::PathNotFound);
    // The one that is restored from stays until its files are copied.
    old.discardOldest(from);
    bringFiles(from, old);
    old.discardOldest({});
}

void BookReplacement::bringFiles(const QString& from, const KeptBook& old) const {
    const auto bring = [&] {
        emptyFolder(attachments_);
        if (!from.isEmpty() && !files::entriesOf(from).files.isEmpty()) files::copyAllFiles(from, attachments_);
    };
    try {
        bring();
    } catch (const RuntimeError& failure) {
        if (failure.error() != Error::DiskFull || !old.isKept() || !files::areOnOneDisk(backups_, attachments_)) throw;
        // The old files would have made room for the new ones, had they not been kept.
        old.discard();
        bring();
    }
}

void BookReplacement::forget(const KeptBook& kept) const {
    kept.forgetDatabase();
    discardNote();
}

void BookReplacement::discardRemains() const {
    // The old file is still in its place: nothing has begun.
    if (files::isTaken(successor())) {
        forget(kept());
        QFile::remove(successor());
    }
    for (const QString& folder : {QFileInfo(place_).absolutePath(), attachments_, backups_})
        files::discardUnfinished(folder);
}

void emptyFolder(const QString& folder) {
    if (!files::folderExists(folder)) return;
    if (!files::entriesOf(folder).files.isEmpty()) files::deleteAllFiles(folder);
}

}  // namespace data
