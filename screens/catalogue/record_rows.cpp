#include "screens/catalogue/record_rows.h"

#include "screens/catalogue/screen_definition.h"
#include "session/selection.h"

using namespace Qt::StringLiterals;

namespace screens {

namespace {

/// A select of the records: what of them, whose they are, and their order.
struct Select {
    QString columns;
    QString rows;
    QString order;
};

Select members(const session::Selection& selection) {
    Select select{u"*"_s, u"from Person "_s, u"Order by Seq, ID"_s};
    if (!selection.wholeFamily) select.rows += u"WHERE ID = %1 "_s.arg(selection.personID);
    return select;
}

Select owned(const ScreenDefinition& definition, const session::Selection& selection) {
    const QString table = definition.table;
    Select select{table + u".*"_s, u"FROM Person INNER JOIN %1 ON Person.ID = %1.PersonID "_s.arg(table),
                  u"ORDER BY Person.Seq, %1.ID"_s.arg(table)};
    const bool filters = definition.shared && definition.shared->filters;
    if (filters) select.rows += u"Where Type = %1 "_s.arg(definition.shared->type);
    if (!selection.wholeFamily)
        select.rows += u"%1 %2.PersonID = %3 "_s.arg(filters ? u"and"_s : u"WHERE"_s, table).arg(selection.personID);
    return select;
}

bool isOwned(const ScreenDefinition& definition) {
    return !definition.ownerLabel.isEmpty();
}

}  // namespace

QString recordStatement(const ScreenDefinition& definition, const session::Selection& selection) {
    if (!definition.query.isEmpty()) return definition.query;
    const Select select = isOwned(definition) ? owned(definition, selection) : members(selection);
    return u"SELECT "_s + select.columns + u' ' + select.rows + select.order;
}

QString countStatement(const ScreenDefinition& definition, const session::Selection& selection) {
    const QString count = u"SELECT Count(*) as NumRec "_s;
    if (!definition.query.isEmpty()) return count + u"from "_s + definition.table;
    return count + (isOwned(definition) ? owned(definition, selection) : members(selection)).rows;
}

QString recordCaption(const ScreenDefinition& definition, const session::Selection& selection) {
    if (isOwned(definition)) {
        const QString word = definition.shared ? QString(definition.shared->word) : QString();
        return word + definition.title + selection.name;
    }
    if (!definition.query.isEmpty()) return definition.title;
    return definition.title + (selection.wholeFamily ? u" for Whole Family"_s : u" -- "_s + selection.name);
}

QString childStatement(const ScreenDefinition& child, int typeID, int parentID) {
    return u"%1Where TypeID = %2 and ParentID = %3%4"_s.arg(child.query)
        .arg(typeID)
        .arg(parentID)
        .arg(child.queryOrder);
}

QString childCaption(const ChildOffer& offer, const QString& description) {
    return offer.title + description;
}

}  // namespace screens
