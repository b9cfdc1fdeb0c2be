#include "book/book_reader.h"

#include <algorithm>

#include "book/attached_files.h"
#include "book/book_visitor.h"
#include "book/listed.h"
#include "book/record_document.h"
#include "data/recordset.h"
#include "platform/base/display_format.h"
#include "screens/catalogue/catalogue.h"
#include "screens/catalogue/record_rows.h"
#include "screens/cover_page_print.h"

using namespace Qt::StringLiterals;

namespace book {

namespace {

bool belongsToAMember(const screens::ScreenDefinition& screen) {
    return screen.query.isEmpty();
}

session::Selection only(const session::Member& member) {
    return {.name = member.name, .personID = member.id, .wholeFamily = false};
}

const screens::ScreenDefinition& childOf(const screens::ChildOffer& offer) {
    return screens::childScreens()[static_cast<std::size_t>(offer.kind)];
}

QStringList cellsOf(const data::Recordset& rows, const QStringList& names, const std::vector<int>& shown) {
    QStringList cells;
    for (const int column : shown)
        cells.append(platform::displayText(rows.value(names[column]), rows.columnKind(names[column]), {}));
    return cells;
}

}  // namespace

BookReader::BookReader(data::Connection& connection, session::Selection selection, std::vector<Chapter> chapters,
                       std::span<const session::ShownRows> shown)
    : connection_(connection),
      selection_(std::move(selection)),
      chapters_(std::move(chapters)),
      shown_(shown),
      members_(session::familyMembers(connection)) {
    if (!selection_.wholeFamily)
        std::erase_if(members_, [this](const session::Member& member) { return member.id != selection_.personID; });
}

// Counting ---------------------------------------------------------------------------------------------------------

int BookReader::number(const QString& statement) {
    data::Recordset rows;
    rows.open(statement, connection_);
    return rows.value(u"NumRec"_s).toInt();
}

int BookReader::count() {
    int count = 0;
    for (const Chapter& chapter : chapters_)
        count += countOf(chapter);
    return count;
}

int BookReader::countOf(const Chapter& chapter) {
    const QString count = u"SELECT Count(*) as NumRec from "_s;
    if (chapter.window == attachedFiles()) return number(count + u"Attachments"_s);
    if (const lists::ListDefinition* list = listed(chapter.window)) {
        const bool ofMember = !selection_.wholeFamily && !list->ofMember.isEmpty();
        return number(count + list->table +
                      (ofMember ? u" Where PersonID = %1"_s.arg(selection_.personID) : QString()));
    }
    const screens::ScreenDefinition* screen = screens::screenDefinition(chapter.window);
    return screen ? countOf(*screen) : 0;
}

int BookReader::countOf(const screens::ScreenDefinition& screen) {
    int count = number(screens::countStatement(screen, selection_));
    for (const screens::ChildOffer& offer : screen.children) {
        const QString whose = selection_.wholeFamily ? QString() : u" and PersonID = %1"_s.arg(selection_.personID);
        count += number(
            u"SELECT Count(*) as NumRec from %1 Where TypeID = %2 and ParentID in (Select %3.ID from %3 "
            "INNER JOIN Person ON Person.ID = %3.PersonID%4)"_s.arg(childOf(offer).table)
                .arg(screen.parentType)
                .arg(screen.table, whose));
    }
    return count;
}

// Reading ----------------------------------------------------------------------------------------------------------

std::vector<screens::CoverPage> BookReader::coverPages() {
    const screens::ScreenDefinition& screen = *screens::screenDefinition(u"frmCoverPage");
    data::Recordset rows;
    rows.open(screens::recordStatement(screen, selection_), connection_);
    std::vector<screens::CoverPage> pages;
    const auto text = [&](QLatin1StringView column) { return boxText(screen, rows, column); };
    for (; !rows.eof(); rows.moveNext()) {
        pages.push_back({.heading1 = text("Heading1"_L1),
                         .subHeading1 = text("SubHeading1"_L1),
                         .heading2 = text("Heading2"_L1),
                         .subHeading2 = text("SubHeading2"_L1),
                         .date = text("Date"_L1)});
    }
    return pages;
}

bool BookReader::read(BookVisitor& visitor) {
    return std::ranges::all_of(chapters_, [&](const Chapter& chapter) { return readChapter(chapter, visitor); });
}

bool BookReader::readChapter(const Chapter& chapter, BookVisitor& visitor) {
    visitor.heading(chapter.level, chapter.title, chapter.title);
    if (chapter.window == attachedFiles()) return AttachedFiles(connection_, selection_, shown_).read(visitor);
    if (const lists::ListDefinition* list = listed(chapter.window)) return readList(*list, visitor);
    const screens::ScreenDefinition* screen = screens::screenDefinition(chapter.window);
    return !screen || readScreen(*screen, chapter, visitor);
}

bool BookReader::readScreen(const screens::ScreenDefinition& screen, const Chapter& chapter, BookVisitor& visitor) {
    if (!belongsToAMember(screen)) return readRecords(screen, {}, visitor);
    return std::ranges::all_of(members_, [&](const session::Member& member) {
        const QString name = session::ownerText(member.name);
        const QString above = chapter.title + u" -- "_s + name;
        if (selection_.wholeFamily) {
            visitor.heading(chapter.level + 1, name, above);
        } else {
            visitor.heading(chapter.level, chapter.title, above);
        }
        return readRecords(screen, member, visitor);
    });
}

bool BookReader::readRecords(const screens::ScreenDefinition& screen, const session::Member& owner,
                             BookVisitor& visitor) {
    const QString name = session::ownerText(owner.name);
    const Surroundings surroundings{.caption = screens::recordCaption(screen, selection_), .owner = name};
    data::Recordset rows;
    rows.open(screens::recordStatement(screen, only(owner)), connection_);
    for (; !rows.eof(); rows.moveNext()) {
        if (!visitor.record(recordDocument(screen, rows, surroundings))) return false;
        if (!readChildren(screen, rows, owner.name, visitor)) return false;
    }
    return true;
}

bool BookReader::readChildren(const screens::ScreenDefinition& site, const data::Recordset& row, const QString& owner,
                              BookVisitor& visitor) {
    for (const screens::ChildOffer& offer : site.children) {
        const screens::ScreenDefinition& child = childOf(offer);
        const QString description = boxText(site, row, "Description"_L1);
        const Surroundings surroundings{
            .caption = screens::childCaption(offer, description), .owner = owner, .location = description};
        data::Recordset rows;
        rows.open(screens::childStatement(child, site.parentType, row.value(u"ID"_s).toInt()), connection_);
        for (; !rows.eof(); rows.moveNext()) {
            if (!visitor.record(recordDocument(child, rows, surroundings))) return false;
        }
    }
    return true;
}

bool BookReader::readList(const lists::ListDefinition& list, BookVisitor& visitor) {
    data::Recordset rows;
    rows.open(lists::listStatement(list, selection_), connection_);
    const QStringList names = rows.fieldNames();
    const std::vector<int> shown = lists::shownColumns(list);
    visitor.beginList({.caption = lists::listCaption(list, selection_), .columns = lists::paperColumns(list, names)});
    bool goesOn = true;
    for (; goesOn && !rows.eof(); rows.moveNext())
        goesOn = visitor.row(cellsOf(rows, names, shown));
    visitor.endList();
    return goesOn;
}

}  // namespace book
