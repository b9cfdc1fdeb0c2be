#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "data/recordset.h"

namespace attachments {

/// One file attached to a record, as its row has it.
struct Attachment {
    QString fileName;  ///< its stored name, without folder
    QString fileType;
    QString fileDesc;
    QString oldFileName;  ///< name of the file that it was copied from
    int seqNum = 0;
};

/// The files attached to one record: copies under generated names in one folder beside the program, and a row for each.
///
/// The record's key is the only tie between the two. The key and the names go into the statements as they stand.
class AttachmentStore {
public:
    /// `applicationFolder`: without a closing separator. `key`: the record's attachment key, "Hom_3_17".
    AttachmentStore(data::Connection& connection, const QString& applicationFolder, QString key);

    /// The folder of all stored files, with a closing separator; made when the first file is stored.
    [[nodiscard]] const QString& folder() const { return folder_; }

    /// The record's attachments in the order in which they were attached.
    [[nodiscard]] std::vector<Attachment> attachments();
    /// Copies a file into the folder under a free name, marks the copy read-only and gives what its row is to hold.
    /// A failure leaves no file under that name. The copy is not yet on the disk for certain: addRow() sees to it.
    /// Errors as platform::files::copyFile() and the provider's.
    [[nodiscard]] Attachment storeFile(const QString& source);
    /// Waits until a stored file is on the disk and adds its row; when that fails the stored file is deleted again. A
    /// row that is in the database in spite of a failure counts as added.
    void addRow(const Attachment& attachment);
    /// True for the name of a plain file that lies in the folder. The names come from a database file, which may be
    /// anybody's: one that leads elsewhere, by a separator, by ".." or by a link, is no stored file.
    [[nodiscard]] bool isStored(const QString& fileName) const;
    /// Deletes a stored file, which may be gone already, and then its row. No file goes that isn't a stored one.
    void remove(const QString& fileName);
    /// An apostrophe in the description ends the statement's text early, and the provider refuses it.
    void setDescription(const QString& fileName, const QString& description);

private:
    /// First value of the first row.
    [[nodiscard]] int number(const QString& statement);
    void execute(const QString& statement);
    /// Highest SeqNum of the record's rows; 0 without any.
    [[nodiscard]] int highestSeqNum();
    [[nodiscard]] QString freeName(int number, const QString& source);
    [[nodiscard]] int rowsNaming(const QString& fileName);
    [[nodiscard]] bool isTaken(const QString& name);
    void deleteStoredFile(const QString& fileName) const;
    void insertRow(const Attachment& attachment);
    /// Whether a row names the file; unknown where the database can't be asked.
    [[nodiscard]] std::optional<bool> hasRow(const QString& fileName);
    /// Deletes a file that has got no row, as far as that can be done.
    void discard(const QString& fileName) const noexcept;

    data::Connection& connection_;
    QString folder_;
    QString key_;
    data::Recordset rows_;
};

/// The last characters of a name, the whole of a shorter one. A character beyond the basic plane counts as one, so that
/// none is cut in half.
[[nodiscard]] QString lastCharacters(const QString& name, int count);

}  // namespace attachments
