#include "lists/sequenced_dialog.h"

#include "platform/base/conversions.h"
#include "platform/forms/desktop.h"

using namespace Qt::StringLiterals;

namespace lists {

SequencedDialog::SequencedDialog(platform::Desktop& desktop, const EditForm& form, data::Connection& connection,
                                 Sequence sequence, std::optional<RequiredText> required)
    : EditDialog(desktop, form),
      connection_(connection),
      sequence_(std::move(sequence)),
      required_(std::move(required)) {}

bool SequencedDialog::accepts() {
    if (!platform::isNumeric(text(txtSequence))) {
        desktop().notice(u"The Sequence field does not contain a valid number."_s, u"Invalid Number Format"_s);
        pointAt(txtSequence);
        return false;
    }
    if (required_ && text(required_->field).isEmpty()) {
        desktop().notice(required_->text, required_->title);
        pointAt(required_->field);
        return false;
    }
    return isWithinReach();
}

bool SequencedDialog::isWithinReach() {
    data::Recordset largest;
    const QString where = sequence_.scope.isEmpty() ? QString() : u" where "_s + sequence_.scope;
    largest.open(u"Select Max(Seq) as lMax from "_s + sequence_.table + where, connection_);
    const QVariant lMax = largest.value(u"lMax"_s);
    largest.close();
    const QString entered = text(txtSequence);
    // Without rows there is no largest number, and every one is good.
    if (platform::toLong(entered) <= lMax.toLongLong() + 1 || lMax.isNull()) return true;
    desktop().notice(u"The number entered in the Sequence field, "_s + entered +
                         u", is greater than the maximum number, "_s + platform::numberText(lMax.toDouble()) +
                         u", plus one.  Enter a smaller Sequence number."_s,
                     u"Sequence Number Too Large"_s);
    pointAt(txtSequence);
    return false;
}

}  // namespace lists
