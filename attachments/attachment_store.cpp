#include "attachments/attachment_store.h"

#include <exception>

#include "data/connection.h"
#include "data/provider_error.h"
#include "platform/base/files.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;
namespace files = platform::files;

namespace attachments {

namespace {
constexpr int extensionWithDot = 4;
constexpr int extension = 3;

/// A stored name of ours bears no apostrophe; in a foreign one it must not end the text and reach other rows.
QString inStatement(QString name) {
    return name.replace(u'\'', u"''"_s);
}

}  // namespace

QString lastCharacters(const QString& name, int count) {
    qsizetype begin = name.size();
    for (; count > 0 && begin > 0; --count) {
        --begin;
        if (begin > 0 && name.at(begin).isLowSurrogate() && name.at(begin - 1).isHighSurrogate()) --begin;
    }
    return name.sliced(begin);
}

AttachmentStore::AttachmentStore(data::Connection& connection, const QString& applicationFolder, QString key)
    : connection_(connection),
      folder_(files::join(applicationFolder, u"Attachments"_s) + files::separator()),
      key_(std::move(key)) {}

std::vector<Attachment> AttachmentStore::attachments() {
    std::vector<Attachment> found;
    rows_.release();
    rows_.open(u"SELECT * from Attachments Where BugNum = '"_s + key_ + u"' Order By SeqNum "_s, connection_);
    for (; !rows_.eof(); rows_.moveNext()) {
        found.push_back({.fileName = rows_.value(u"fileName"_s).toString(),
                         .fileType = rows_.value(u"FileType"_s).toString(),
                         .fileDesc = rows_.value(u"fileDesc"_s).toString(),
                         .oldFileName = rows_.value(u"OldFileName"_s).toString(),
                         .seqNum = rows_.value(u"SeqNum"_s).toInt()});
    }
    rows_.close();
    return found;
}

// Add --------------------------------------------------------------------------------------------------------------

Attachment AttachmentStore::storeFile(const QString& source) {
    const QString title = files::nameOf(source);
    const int highest = highestSeqNum();
    // The first file of a record is number 0 though its row is the first; from the second on both go together.
    const QString name = freeName(highest == 0 ? 0 : highest + 1, title);
    files::makeFolder(folder_.chopped(1));
    // The description is asked for at once; addRow() waits for the disk.
    files::copyFileUnflushed(source, folder_ + name);
    Attachment stored{.fileName = name,
                      .fileType = lastCharacters(name, extension),
                      .fileDesc = {},
                      .oldFileName = title,
                      .seqNum = highest + 1};
    try {
        files::setReadOnly(folder_ + name);
    } catch (...) {
        discard(name);
        throw;
    }
    return stored;
}

int AttachmentStore::highestSeqNum() {
    if (number(u"SELECT Count(*) as Ctr from Attachments Where BugNum = '"_s + key_ + u"'"_s) == 0) return 0;
    return number(u"SELECT SeqNum from Attachments Where BugNum = '"_s + key_ + u"' Order by SeqNum desc Limit 1"_s);
}

QString AttachmentStore::freeName(int number, const QString& source) {
    const auto nameFor = [&](int tried) {
        return u"%1_%2%3"_s.arg(key_.trimmed(), QString::number(tried), lastCharacters(source, extensionWithDot));
    };
    while (isTaken(nameFor(number)))
        ++number;
    return nameFor(number);
}

int AttachmentStore::rowsNaming(const QString& fileName) {
    return number(u"SELECT Count(*) as ctr from Attachments Where FileName = '"_s + fileName + u"'"_s);
}

bool AttachmentStore::isTaken(const QString& name) {
    if (rowsNaming(name) > 0) return true;
    // A file without a row was left behind by a record of that key.
    return files::fileExists(folder_ + name);
}

void AttachmentStore::addRow(const Attachment& attachment) {
    try {
        files::flush(folder_ + attachment.fileName);
        insertRow(attachment);
    } catch (...) {
        rows_.release();
        const std::optional<bool> added = hasRow(attachment.fileName);
        if (added.value_or(false)) return;
        // Without its row nobody would find the file again; a row without its file would be worse.
        if (added) discard(attachment.fileName);
        throw;
    }
}

void AttachmentStore::insertRow(const Attachment& attachment) {
    data::Recordset row(data::Opening::List);
    row.open(u"SELECT * from Attachments Where 1=2"_s, connection_);
    row.addNew();
    row.setValue(u"fileName"_s, attachment.fileName);
    row.setValue(u"filePath"_s, folder_);
    row.setValue(u"FileType"_s, attachment.fileType);
    row.setValue(u"fileDesc"_s, attachment.fileDesc);
    row.setValue(u"OldFileName"_s, attachment.oldFileName);
    row.setValue(u"BugNum"_s, key_);
    row.setValue(u"SeqNum"_s, attachment.seqNum);
    row.update();
}

std::optional<bool> AttachmentStore::hasRow(const QString& fileName) {
    try {
        return rowsNaming(fileName) > 0;
    } catch (const platform::RuntimeError& failure) {
        rows_.release();
        if (failure.error() == platform::Error::MissingTable) return false;
        return std::nullopt;
    }
}

void AttachmentStore::discard(const QString& fileName) const noexcept {
    try {
        deleteStoredFile(fileName);
    } catch (const std::exception&) {
        // What went wrong before is told, and not this.
        return;
    }
}

// Delete and edit --------------------------------------------------------------------------------------------------

void AttachmentStore::remove(const QString& fileName) {
    deleteStoredFile(fileName);
    execute(u"Delete from Attachments Where FileName = '"_s + inStatement(fileName) + u"'"_s);
}

bool AttachmentStore::isStored(const QString& fileName) const {
    return !fileName.contains(files::separator()) && files::isPlainFile(folder_ + fileName);
}

void AttachmentStore::deleteStoredFile(const QString& fileName) const {
    if (!isStored(fileName)) return;
    const QString path = folder_ + fileName;
    if (files::isReadOnly(path)) files::setReadOnly(path, false);
    files::deleteFile(path, false);
}

void AttachmentStore::setDescription(const QString& fileName, const QString& description) {
    execute(u"Update Attachments Set fileDesc = '"_s + description + u"' Where fileName = '"_s + inStatement(fileName) +
            u"'"_s);
}

// Statements -------------------------------------------------------------------------------------------------------

int AttachmentStore::number(const QString& statement) {
    rows_.release();
    rows_.open(statement, connection_);
    const int value = rows_.value(rows_.fieldNames().constFirst()).toInt();
    rows_.close();
    return value;
}

void AttachmentStore::execute(const QString& statement) {
    rows_.release();
    rows_.open(statement, connection_);
}

}  // namespace attachments
