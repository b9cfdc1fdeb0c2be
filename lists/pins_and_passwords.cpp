#include "lists/pins_and_passwords.h"

#include "data/cipher.h"
#include "data/pin_secrets.h"
#include "platform/base/runtime_error.h"
#include "platform/forms/desktop.h"
#include "session/pin_lists.h"
#include "session/refusals.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace lists {

namespace {

const QString txtPINPass = u"txtPINPass"_s;

const ListDefinition pinList{
    .window = u"frmPinsAndPasswords"_s,
    .caption = u"PIN and Password Information"_s,
    .table = u"PIN_Password"_s,
    .rowLines = 2,
    .shares = {0.001, 0.07, 0.545, 0.17, 0.21, 0.001, 0.001},
    .form = {u"frmPinsAndPassEdit"_s,
             u"PINs and Passwords Edit Screen"_s,
             {{.name = txtSequence, .label = u"Sequence:"_s, .gridColumn = 1},
              {.name = u"txtAccount"_s,
               .label = u"Account:"_s,
               .gridColumn = 2,
               .stored = u"Account"_s,
               .ampersands = Ampersands::DoubledInTable},
              {.name = u"txtUsername"_s, .label = u"User Name:"_s, .gridColumn = 3, .stored = u"UserName"_s},
              {.name = txtPINPass,
               .label = u"PIN or Password:"_s,
               .gridColumn = 4,
               .ampersands = Ampersands::DoubledInTable}},
             txtSequence},
    .closesTree = true,
};

const RequiredText requiredAccount{
    u"txtAccount"_s, u"Invalid Account Information"_s,
    u"The Account field is empty.  An account must be entered in order to have it saved into the grid."_s};

void tellProtected(platform::Desktop& desktop, const QString& change, const QString& title) {
    desktop.notice(
        u"You cannot %1 this PINs and Passwords Screen entry.  If you want to change the password for this "
        "entry, click on 'Change PIN/Password Screen Password' under the Security category."_s.arg(change),
        title);
}

/// What the PIN's cipher couldn't bring back isn't taken.
class PinDialog : public SequencedDialog {
public:
    using SequencedDialog::SequencedDialog;

protected:
    [[nodiscard]] bool accepts() override {
        if (!SequencedDialog::accepts()) return false;
        if (session::canBeSecret(desktop(), text(txtPINPass), u"PIN or password"_s)) return true;
        pointAt(txtPINPass);
        return false;
    }
};

}  // namespace

PinsAndPasswords::PinsAndPasswords(platform::Desktop& desktop, session::Session& session, session::Workspace& workspace)
    : SequencedList(desktop, session, workspace, pinList), owner_(session.gPersonID) {}

QString PinsAndPasswords::selectStatement() const {
    return u"Select * from PIN_Password where PersonID = %1 Order By Seq"_s.arg(owner_);
}

Sequence PinsAndPasswords::sequence() const {
    return {pinList.table, u"PersonID = %1"_s.arg(owner_)};
}

std::unique_ptr<EditDialog> PinsAndPasswords::makeDialog() {
    return std::make_unique<PinDialog>(desktop(), pinList.form, session().gConnection, sequence(), requiredAccount);
}

void PinsAndPasswords::writeRow(data::Recordset& row) {
    SequencedList::writeRow(row);
    row.setValue(u"PIN_Password"_s, data::cipher(dialog().storedText(txtPINPass)));
    row.setValue(u"PersonID"_s, owner_);
    row.setValue(u"Encrypted"_s, data::cipher(data::plainMark()));
}

// Cipher -----------------------------------------------------------------------------------------------------------

void PinsAndPasswords::Form_Load() {
    platform::Desktop::attempt([this] { SequencedList::Form_Load(); },
                               [this](const platform::RuntimeError& failure) {
                                   restRows();
                                   throw failure;
                               });
}

void PinsAndPasswords::prepareRows() {
    data::Recordset& list = rows();
    if (list.bof() && list.eof()) return;
    for (list.moveFirst(); !list.eof(); list.moveNext()) {
        if (list.value(u"Encrypted"_s).toString() == data::plainMark()) continue;
        list.setValue(u"PIN_Password"_s, data::cipher(list.value(u"PIN_Password"_s).toString()));
        list.setValue(u"Encrypted"_s, data::plainMark());
    }
    list.moveFirst();
}

void PinsAndPasswords::restRows() {
    session::hidePins(desktop(), session().gConnection, owner_);
}

// The protected row ------------------------------------------------------------------------------------------------

bool PinsAndPasswords::isProtected() {
    return rows().hasCurrentRow() && cell(2) == data::protectedAccount();
}

bool PinsAndPasswords::mayEditRow() {
    if (!isProtected()) return true;
    tellProtected(desktop(), u"edit"_s, u"No Edit Allowed"_s);
    return false;
}

bool PinsAndPasswords::mayDeleteRow() {
    if (!isProtected()) return true;
    tellProtected(desktop(), u"delete"_s, u"No Delete Allowed"_s);
    return false;
}

}  // namespace lists
