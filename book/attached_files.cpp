#include "book/attached_files.h"

#include <algorithm>

#include "book/book_visitor.h"
#include "book/listed.h"
#include "data/recordset.h"
#include "output/printable_grid.h"
#include "screens/catalogue/catalogue.h"

using namespace Qt::StringLiterals;

namespace book {

namespace {

const output::PrintableGrid head{
    .caption = u"Attachments"_s,
    .columns = {{u"Category"_s, 20}, {u"Member"_s, 17}, {u"File"_s, 20}, {u"Description"_s, 20}}};

}  // namespace

AttachedFiles::AttachedFiles(data::Connection& connection, session::Selection selection,
                             const std::vector<Chapter>& chapters)
    : connection_(connection), selection_(std::move(selection)), members_(session::familyMembers(connection)) {
    for (const Chapter& chapter : chapters)
        addKinds(kinds_, chapter);
    for (const screens::ScreenDefinition& definition : screens::childScreens())
        kinds_.push_back({definition.table, definition.attachmentPrefix, definition.table, Kind::Owner::OfSite});
}

void AttachedFiles::addKinds(std::vector<Kind>& kinds, const Chapter& chapter) {
    if (const lists::ListDefinition* list = listed(chapter.window)) {
        if (list->attachmentPrefix.isEmpty()) return;
        const auto owner = list->ofMember.isEmpty() ? Kind::Owner::Nobody : Kind::Owner::InRow;
        kinds.push_back({chapter.title, list->attachmentPrefix + u'_', list->table, owner, true});
        return;
    }
    const screens::ScreenDefinition* screen = screens::screenDefinition(chapter.window);
    if (!screen || screen->attachmentPrefix.isEmpty()) return;
    const bool isShared = !screen->query.isEmpty();
    const bool isMember = !isShared && screen->ownerLabel.isEmpty();
    const auto owner = isShared ? Kind::Owner::Nobody : isMember ? Kind::Owner::Itself : Kind::Owner::InRow;
    const int type = screen->shared ? screen->shared->type : 0;
    kinds.push_back({chapter.title, screen->attachmentPrefix, screen->table, owner, isMember, type});
}

bool AttachedFiles::read(BookVisitor& visitor) {
    visitor.beginList(head);
    const bool goesOn = std::ranges::all_of(kinds_, [&](const Kind& kind) { return readKind(kind, visitor); });
    visitor.endList();
    return goesOn;
}

bool AttachedFiles::readKind(const Kind& kind, BookVisitor& visitor) {
    data::Recordset files;
    files.open(u"Select * from Attachments Where substr(BugNum, 1, %1) = '%2' Order By length(BugNum), BugNum, SeqNum"_s
                   .arg(kind.prefix.size())
                   .arg(kind.prefix),
               connection_);
    for (; !files.eof(); files.moveNext()) {
        const qint64 record = recordOf(kind, files.value(u"BugNum"_s).toString());
        if (kind.type != 0 && number(u"Type"_s, kind.table, record) != kind.type) continue;
        const Whose whose = ownerOf(kind, record);
        if (!selection_.wholeFamily && !whose.isShared && whose.member != selection_.personID) continue;
        const QStringList cells{kind.category, nameOf(whose), files.value(u"OldFileName"_s).toString(),
                                files.value(u"fileDesc"_s).toString()};
        if (!visitor.row(cells)) return false;
    }
    return true;
}

qint64 AttachedFiles::recordOf(const Kind& kind, const QString& key) {
    const QStringList numbers = key.sliced(kind.prefix.size()).split(u'_');
    return (kind.numberedFirst ? numbers.first() : numbers.last()).toLongLong();
}

AttachedFiles::Whose AttachedFiles::ownerOf(const Kind& kind, qint64 record) {
    switch (kind.owner) {
        case Kind::Owner::Nobody:
            return {.isShared = true};
        case Kind::Owner::Itself:
            return {.member = static_cast<int>(record)};
        case Kind::Owner::InRow:
            return {.member = number(u"PersonID"_s, kind.table, record)};
        case Kind::Owner::OfSite:
            break;
    }
    return {.member = ownerOfSite(number(u"TypeID"_s, kind.table, record), number(u"ParentID"_s, kind.table, record))};
}

int AttachedFiles::ownerOfSite(int type, int site) {
    const auto screens = screens::ownedScreens();
    const auto found = std::ranges::find(screens, type, &screens::ScreenDefinition::parentType);
    return type == 0 || found == screens.end() ? 0 : number(u"PersonID"_s, found->table, site);
}

int AttachedFiles::number(const QString& column, const QString& table, qint64 id) {
    data::Recordset row;
    row.open(u"Select %1 from %2 Where ID = %3"_s.arg(column, table).arg(id), connection_);
    return row.eof() ? 0 : row.value(column).toInt();
}

QString AttachedFiles::nameOf(const Whose& whose) const {
    const auto member = std::ranges::find(members_, whose.member, &session::Member::id);
    return member == members_.end() ? QString() : member->name;
}

}  // namespace book
