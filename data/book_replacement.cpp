#include "data/book_replacement.h"

#include <QFile>
#include <QFileInfo>

#include "data/book_check.h"
#include "platform/base/file_identity.h"
#include "platform/base/file_replacement.h"
#include "platform/base/files.h"
#include "platform/base/folder_entries.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace data {

using platform::Error;
using platform::RuntimeError;

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

BookReplacement::BookReplacement(const QString& live, QString attachments)
    : place_(placeOf(live)), attachments_(std::move(attachments)), claim_(QFileInfo(place_).absolutePath()) {}

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
    // A note without a successor says that the new file has its place: the note is the first to go.
    Unless noteGoes([this] { discardNote(); });
    writeNote(companion);
    discardJournal();
    putSuccessorInPlace();
    noteGoes.keep();
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

// Attached files ---------------------------------------------------------------------------------------------------

void BookReplacement::writeNote(const QString& companion) const {
    const bool exists = files::folderExists(companion);
    files::FileReplacement file(note());
    file.write(exists ? QFileInfo(companion).absoluteFilePath().toUtf8() : QByteArray());
    file.place();
    files::syncFolder(file.folder());
}

void BookReplacement::discardNote() const {
    if (QFile::remove(note())) files::settleFolder(QFileInfo(place_).absolutePath());
}

bool BookReplacement::isUnfinished() const {
    return files::fileExists(note());
}

QString BookReplacement::companion() const {
    QFile file(note());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void BookReplacement::replaceAttachments() {
    const Unless over([this] { discardNote(); });
    const QString from = companion();
    files::makeFolder(attachments_);
    if (!from.isEmpty() && !files::folderExists(from)) throw RuntimeError(Error::PathNotFound);
    emptyFolder(attachments_);
    if (!from.isEmpty() && !files::entriesOf(from).files.isEmpty()) files::copyAllFiles(from, attachments_);
}

void BookReplacement::discardRemains() const {
    // The old file is still in its place: nothing has begun.
    if (files::isTaken(successor())) {
        discardNote();
        QFile::remove(successor());
    }
    files::discardUnfinished(QFileInfo(place_).absolutePath());
    files::discardUnfinished(attachments_);
}

void emptyFolder(const QString& folder) {
    if (!files::folderExists(folder)) return;
    if (!files::entriesOf(folder).files.isEmpty()) files::deleteAllFiles(folder);
}

}  // namespace data
