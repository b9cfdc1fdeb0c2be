#include "data/kept_book.h"

#include <QDir>
#include <QRegularExpression>

#include "data/database_files.h"
#include "data/pin_secrets.h"
#include "platform/base/clock.h"
#include "platform/base/file_identity.h"
#include "platform/base/file_replacement.h"
#include "platform/base/files.h"
#include "platform/base/folder_entries.h"
#include "platform/base/unexpected_error.h"
#include "platform/base/unfinished.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace data {

using platform::passOver;

namespace {

constexpr qsizetype pairsKept = 3;

bool isName(const QString& name) {
    static const QRegularExpression pattern(u"\\ABefore_\\d{4}-\\d\\d-\\d\\d_\\d{6}\\z"_s);
    return pattern.match(name).hasMatch();
}

const QString ending = u".mdb"_s;

/// Names of all pairs; a folder without its database is none, and nobody's business here.
QStringList namesIn(const QString& backups) {
    QStringList names;
    for (const QString& file : files::entriesOf(backups).files) {
        if (file.endsWith(ending) && isName(file.chopped(ending.size()))) names << file.chopped(ending.size());
    }
    return names;
}

QString freeName(const QString& backups) {
    const QDir folder(backups);
    const auto nameAt = [](const QDateTime& moment) { return u"Before_"_s + moment.toString(u"yyyy-MM-dd_hhmmss"_s); };
    const auto isBorne = [&](const QString& name) {
        return !folder.entryList({name + u'*'}, QDir::AllEntries | QDir::Hidden | QDir::System).isEmpty();
    };
    QDateTime moment = platform::systemClock().now();
    while (isBorne(nameAt(moment)))
        moment = moment.addSecs(1);
    return nameAt(moment);
}

/// Under a name that a later run deletes, should this one die: what is half deleted must not pass for a backup's.
void discardFolder(const QString& folder) {
    if (!files::folderExists(folder)) return;
    const QString going = files::unfinishedPath(files::folderOf(folder));
    files::moveFile(folder, going);
    files::deleteFolder(going);
}

}  // namespace

KeptBook::KeptBook(QString backups, const QString& name)
    : backups_(std::move(backups)), name_(isName(name) ? name : QString()) {}

KeptBook KeptBook::ofNow(const QString& backups, const QString& attachments) {
    QString name;
    passOver([&] {
        if (files::folderExists(backups) && !files::isWithin(backups, attachments)) name = freeName(backups);
    });
    return {backups, name};
}

QString KeptBook::database() const {
    return files::join(backups_, name_ + ending);
}

QString KeptBook::companion() const {
    return companionFolder(database());
}

QString KeptBook::companionInTheMaking() const {
    return companion() + u".moving"_s;
}

bool KeptBook::isKept() const {
    return !name_.isEmpty() && files::fileExists(database());
}

void KeptBook::keepDatabase(const QString& live) const noexcept {
    if (name_.isEmpty()) return;
    const bool kept = passOver([&] {
        // Made while there is room, for the files will need none.
        files::makeFolder(companionInTheMaking());
        [[maybe_unused]] const qint64 bytes = backUpDatabase(live, database());
    });
    if (!kept) forgetDatabase();
}

void KeptBook::forgetDatabase() const noexcept {
    if (name_.isEmpty()) return;
    passOver([this] {
        if (isKept()) files::deleteFile(database(), true);
    });
    QDir().rmdir(companionInTheMaking());
}

void KeptBook::takeFiles(const QString& attachments) const noexcept {
    if (!isKept() || !files::folderExists(companionInTheMaking())) return;
    passOver([&] { files::moveAllFiles(attachments, companionInTheMaking()); });
    passOver([&] {
        files::moveFile(companionInTheMaking(), companion());
        files::syncFolder(backups_);
    });
}

void KeptBook::discard() const noexcept {
    if (name_.isEmpty()) return;
    passOver([this] {
        if (isKept()) files::deleteFile(database(), true);
        discardFolder(companion());
    });
}

void KeptBook::discardOldest(const QString& companion) const noexcept {
    if (!isKept()) return;
    passOver([&] {
        for (const QString& name : beyondNewest(namesIn(backups_), pairsKept, {name_})) {
            const KeptBook old(backups_, name);
            if (!files::isSameFile(old.companion(), companion)) old.discard();
        }
    });
}

}  // namespace data
