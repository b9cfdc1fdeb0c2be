#include "lists/sequenced_list.h"

#include <utility>

#include "platform/base/conversions.h"
#include "session/session.h"

using namespace Qt::StringLiterals;

namespace lists {

void SequencedList::beginEdit() {
    // A member that was never put in order has no number yet.
    const QString number = dialog().text(txtSequence);
    nOldSeq_ = number.isEmpty() ? qint16{0} : platform::toInteger(number);
}

bool SequencedList::saveRow() {
    // The rows keep their order when they make room, so the row goes to the number that is entered now.
    if (std::exchange(outOfPlace_, false)) renumberSeq();
    outOfPlace_ = true;
    shiftRows();
    if (!ListScreen::saveRow()) return false;
    outOfPlace_ = false;
    return true;
}

void SequencedList::shiftRows() {
    const QString typed = dialog().text(txtSequence);
    const double number = platform::toDouble(typed);
    const Sequence numbered = sequence();
    const auto shift = [&](const QString& change, const QString& from) {
        const QString scope = numbered.scope.isEmpty() ? QString() : u" And "_s + numbered.scope;
        run(u"Update %1 Set Seq = %2 Where Seq %3"_s.arg(numbered.table, change, from) + scope);
    };
    if (isAdding()) {
        shift(u"Seq + 1"_s, u">= "_s + platform::statementNumber(typed));
    } else if (number > nOldSeq_) {
        shift(u"Seq - 1"_s, u"<= "_s + platform::statementNumber(typed));
    } else if (number < nOldSeq_) {
        shift(u"Seq+1"_s, u">= "_s + QString::number(platform::toInteger(typed)));
    }
}

void SequencedList::writeRow(data::Recordset& row) {
    row.setValue(u"Seq"_s, platform::toInteger(dialog().text(txtSequence)));
}

void SequencedList::renumberSeq() {
    const Sequence numbered = sequence();
    const QString where = numbered.scope.isEmpty() ? QString() : u"where "_s + numbered.scope + u' ';
    data::Recordset& row = rowWrite();
    row.open(u"Select * from %1 %2order by Seq"_s.arg(numbered.table, where), session().gConnection);
    for (qint64 counter = 1; !row.eof(); row.moveNext(), ++counter) {
        const QVariant number = row.value(u"Seq"_s);
        if (number.isNull() || number.toLongLong() == counter) continue;
        run(u"Update %1 Set Seq=%2 Where ID=%3"_s.arg(numbered.table)
                .arg(counter)
                .arg(row.value(u"ID"_s).toLongLong()));
    }
    row.close();
}

}  // namespace lists
