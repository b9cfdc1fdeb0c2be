#pragma once

#include "lists/sequenced_list.h"

namespace lists {

/// One member's accounts with their user names and PINs or passwords.
///
/// The secrets are enciphered in the file and plain only while the list is open; each row tells which it is, so that a
/// run that dies in between is healed by the next opening and closing. The row of the list's own password can't be
/// changed here.
class PinsAndPasswords : public SequencedList {
    Q_OBJECT

public:
    PinsAndPasswords(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace);

    /// What fails half-way leaves no secret plain behind.
    void Form_Load() override;

protected:
    [[nodiscard]] QString selectStatement() const override;
    [[nodiscard]] std::unique_ptr<EditDialog> makeDialog() override;
    /// Deciphers every row that isn't plain yet, in the file.
    void prepareRows() override;
    /// Enciphers every plain row again, in the file.
    void restRows() override;
    [[nodiscard]] bool mayEditRow() override;
    [[nodiscard]] bool mayDeleteRow() override;
    [[nodiscard]] Sequence sequence() const override;
    void writeRow(data::Recordset& row) override;

private:
    [[nodiscard]] bool isProtected();

    /// The member whose list it is, whoever is selected when it closes.
    qint16 owner_;
};

}  // namespace lists
