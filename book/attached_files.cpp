#include "book/attached_files.h"

#include <algorithm>

#include "book/book_visitor.h"
#include "data/recordset.h"
#include "data/tables.h"
#include "output/printable_grid.h"

using namespace Qt::StringLiterals;

namespace book {

namespace {

const output::PrintableGrid head{
    .caption = u"Attachments"_s,
    .columns = {{u"Category"_s, 20}, {u"Member"_s, 17}, {u"File"_s, 20}, {u"Description"_s, 20}}};

const output::PrintableGrid headOfOthers{.caption = u"Attachments Without a Record"_s,
                                         .columns = {{u"Key"_s, 17}, {u"File"_s, 30}, {u"Description"_s, 30}}};

QStringList textsOf(const data::Recordset& files, const QStringList& columns) {
    QStringList texts;
    for (const QString& column : columns)
        texts.append(files.value(column).toString());
    return texts;
}

}  // namespace

AttachedFiles::AttachedFiles(data::Connection& connection, session::Selection selection,
                             std::span<const session::ShownRows> all)
    : connection_(connection),
      selection_(std::move(selection)),
      all_(all),
      locator_(connection, all),
      members_(session::familyMembers(connection)) {}

bool AttachedFiles::read(BookVisitor& visitor) {
    visitor.beginList(head);
    const bool goesOn =
        std::ranges::all_of(all_, [&](const session::ShownRows& rows) { return readThoseOf(rows, visitor); });
    visitor.endList();
    return goesOn && (!selection_.wholeFamily || readThoseOfNone(visitor));
}

bool AttachedFiles::readThoseOf(const session::ShownRows& rows, BookVisitor& visitor) {
    if (rows.attachmentPrefix.isEmpty()) return true;
    data::Recordset files;
    files.open(u"Select * from Attachments Where substr(BugNum, 1, %1) = '%2' Order By length(BugNum), BugNum, SeqNum"_s
                   .arg(rows.attachmentPrefix.size())
                   .arg(rows.attachmentPrefix),
               connection_);
    for (; !files.eof(); files.moveNext()) {
        const std::optional<session::Location> location = locationOf(files);
        // Several windows may have one prefix.
        if (!location || location->shown != &rows || !isSelected(*location)) continue;
        const QStringList cells =
            QStringList{rows.category, nameOf(location->member)} + textsOf(files, {u"OldFileName"_s, u"fileDesc"_s});
        if (!visitor.row(cells)) return false;
    }
    return true;
}

bool AttachedFiles::readThoseOfNone(BookVisitor& visitor) {
    visitor.heading(0, headOfOthers.caption, headOfOthers.caption);
    visitor.beginList(headOfOthers);
    data::Recordset files;
    files.open(u"Select * from Attachments Order By BugNum, SeqNum"_s, connection_);
    bool goesOn = true;
    for (; goesOn && !files.eof(); files.moveNext()) {
        if (!locationOf(files)) goesOn = visitor.row(textsOf(files, {u"BugNum"_s, u"OldFileName"_s, u"fileDesc"_s}));
    }
    visitor.endList();
    return goesOn;
}

std::optional<session::Location> AttachedFiles::locationOf(const data::Recordset& files) {
    const std::optional<session::Place> place = session::placeOfAttachment(all_, files.value(u"BugNum"_s).toString());
    if (!place) return {};
    return locator_.locate(data::table(place->table), place->record);
}

bool AttachedFiles::isSelected(const session::Location& location) const {
    return selection_.wholeFamily || location.member == 0 || location.member == selection_.personID;
}

QString AttachedFiles::nameOf(int member) const {
    const auto found = std::ranges::find(members_, member, &session::Member::id);
    return found == members_.end() ? QString() : found->name;
}

}  // namespace book
