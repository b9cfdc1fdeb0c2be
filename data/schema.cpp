#include "data/schema.h"

#include <QLatin1StringView>
#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace data {

namespace {

constexpr auto counterName = "ID"_L1;
constexpr auto ownerName = "PersonID"_L1;
constexpr auto sharedTypeName = "Type"_L1;

std::vector<QLatin1StringView> keyNames(Keys keys) {
    switch (keys) {
        case Keys::None:
            return {};
        case Keys::Counter:
            return {counterName};
        case Keys::Owner:
            return {counterName, ownerName};
        case Keys::OwnerAndDoctor:
            return {counterName, ownerName, "MedicalID"_L1};
        case Keys::Parent:
            return {counterName, "TypeID"_L1, "ParentID"_L1};
    }
    return {};
}

bool lists(const Table& table, QLatin1StringView name) {
    return std::ranges::any_of(table.columns, [name](const Column& column) { return column.name == name; });
}

/// Names are always quoted: columns are called Date, For, To, Limit.
QString quoted(QLatin1StringView name) {
    return u'"' + name + u'"';
}

QString quoted(const std::vector<QLatin1StringView>& names) {
    QStringList list;
    for (const auto name : names)
        list << quoted(name);
    return list.join(", "_L1);
}

/// Text compares and sorts without case, also for other programs that read the file.
QString declarationOf(const Column& column) {
    switch (column.kind) {
        case FieldKind::Text:
        case FieldKind::City:
        case FieldKind::Zip:
        case FieldKind::Phone:
            if (column.maxLength > 0) return u"TEXT(%1) COLLATE NOCASE"_s.arg(column.maxLength);
            return u"TEXT COLLATE NOCASE"_s;
        case FieldKind::LongText:
            return u"LONGTEXT COLLATE NOCASE"_s;
        case FieldKind::Number:
            return u"DOUBLE"_s;
        case FieldKind::Whole:
            return u"INTEGER"_s;
        case FieldKind::Date:
            return u"DATE"_s;
        case FieldKind::YesNo:
            return u"BOOLEAN"_s;
    }
    return {};
}

QString declaration(const Column& column) {
    // AUTOINCREMENT, not the plain key: attachments refer to a record by its number, so that the number of a deleted
    // record must never be given to a new one.
    if (column.name == counterName) return quoted(column.name) + " INTEGER PRIMARY KEY AUTOINCREMENT"_L1;
    const bool zero = column.kind == FieldKind::YesNo || column.initially == Initially::Zero;
    return quoted(column.name) + u' ' + declarationOf(column) + (zero ? " DEFAULT 0"_L1 : ""_L1);
}

struct Lookup {
    QLatin1StringView table;
    std::vector<QLatin1StringView> columns;
};

/// What single tables are searched by, beside owner and parent.
std::vector<Lookup> lookups() {
    return {
        // Every ordered list of all rows runs over the family in this order.
        {"Person"_L1, {"Seq"_L1}},
        // With the number behind the key, the highest number and the ordered list need no sort.
        {"Attachments"_L1, {"BugNum"_L1, "SeqNum"_L1}},
        // Tried for each new file until a free name is found: 13 ms a try over 100,000 rows without it.
        {"Attachments"_L1, {"FileName"_L1}},
    };
}

/// The index by owner, and by kind too in a table that several windows share.
///
/// A table's own key is in each of its indexes, so this one answers by itself a count, and a list of keys joined to
/// Person: a row with its long texts is never read for them. Measured over 100,000 rows of 1 KB, without and with it:
/// counting 57 and 0.7 ms, the keys of one owner 80 and 5 ms, all keys in the order of the family 170 and 52 ms. The
/// last is 70 ms without the index on Person.Seq, which leaves only each owner's rows to sort. Naming ID in the index
/// gains nothing. Selecting whole rows in that order would lose by it (800 and 970 ms): list keys first, then read
/// rows. In a shared table the kind must be in the index, else every row is read for it: 59 and 14 ms for one window's
/// keys.
std::vector<QLatin1StringView> ownerIndex(const Table& table) {
    const auto isKind = [](const Column& column) {
        return column.kind == FieldKind::Whole && column.name == sharedTypeName;
    };
    if (std::ranges::any_of(table.columns, isKind)) return {ownerName, sharedTypeName};
    return {ownerName};
}

std::vector<std::vector<QLatin1StringView>> indexes(const Table& table) {
    std::vector<std::vector<QLatin1StringView>> result;
    if (table.keys == Keys::Owner || table.keys == Keys::OwnerAndDoctor) result.push_back(ownerIndex(table));
    if (table.keys == Keys::Parent) result.push_back({"TypeID"_L1, "ParentID"_L1});
    for (const Lookup& lookup : lookups()) {
        if (lookup.table == table.name) result.push_back(lookup.columns);
    }
    return result;
}

}  // namespace

std::vector<Column> storedColumns(const Table& table) {
    std::vector<Column> result;
    for (const auto key : keyNames(table.keys)) {
        if (!lists(table, key)) result.push_back({key, {}, FieldKind::Whole, 0, {}, {}, ShownIn::Nowhere});
    }
    std::ranges::copy_if(table.columns, std::back_inserter(result), &Column::isStored);
    return result;
}

QString createStatement(const Table& table) {
    QStringList declarations;
    for (const Column& column : storedColumns(table))
        declarations << declaration(column);
    return "CREATE TABLE "_L1 + quoted(table.name) + " ("_L1 + declarations.join(", "_L1) + u')';
}

std::vector<QString> indexStatements(const Table& table) {
    std::vector<QString> result;
    for (const auto& columns : indexes(table)) {
        const QString name = table.name + u"_by_"_s + columns.front();
        result.push_back(u"CREATE INDEX \"%1\" ON %2 (%3)"_s.arg(name, quoted(table.name), quoted(columns)));
    }
    return result;
}

}  // namespace data
