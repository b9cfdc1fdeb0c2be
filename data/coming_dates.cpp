#include "data/coming_dates.h"

#include <QStringList>
#include <algorithm>
#include <optional>
#include <tuple>

#include "data/recordset.h"
#include "data/tables.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using When = Coming::When;

struct Span {
    QDate today;
    int days;

    [[nodiscard]] QDate first() const { return today.addDays(-daysRunOut); }
    [[nodiscard]] QDate last() const { return today.addDays(days); }
};

/// A row on its way into the list, with its member's place in the family.
struct Found {
    ComingDate date;
    int seq;
};

bool tells(const Column& column) {
    return column.coming.when == When::Once || column.coming.when == When::EachYear;
}

QString inRow(QLatin1StringView column) {
    return u"t.["_s + column + u']';
}

/// The first text of a row that isn't empty, as an expression.
QString recordText(const Table& table) {
    QStringList texts;
    for (const Column& column : table.columns) {
        if (column.isStored() && column.kind == FieldKind::Text) texts << u"NullIf(%1, '')"_s.arg(inRow(column.name));
    }
    return u"Coalesce("_s + texts.join(u", "_s) + u", '')"_s;
}

/// Days are ISO text, with a time behind some.
QString comesWithin(const Column& column, const Span& span) {
    const QString name = inRow(column.name);
    if (column.coming.when == When::EachYear) return name + u" Is Not Null"_s;
    return u"(%1 >= '%2' And %1 < '%3')"_s.arg(name, span.first().toString(Qt::ISODate),
                                               span.last().addDays(1).toString(Qt::ISODate));
}

/// The rows of a table that may have something to tell, each with its member.
QString statement(const Table& table, const Span& span) {
    QStringList columns{u"t.ID"_s, u"p.ID As MemberID"_s, u"p.LegalName"_s, u"p.Seq"_s,
                        recordText(table) + u" As Record"_s};
    QStringList conditions;
    for (const Column& column : table.columns) {
        if (column.coming.when == When::Never) continue;
        columns << inRow(column.name) + u" As Day"_s + column.name;
        if (tells(column)) conditions << comesWithin(column, span);
    }
    const QString owner = table.keys == Keys::Counter ? u"ID"_s : u"PersonID"_s;
    return u"Select %1 From %2 t Inner Join Person p On p.ID = t.%3 Where %4 Order By t.ID"_s.arg(
        columns.join(u", "_s), table.name, owner, conditions.join(u" Or "_s));
}

QDate dayOf(const Recordset& row, const Column& column) {
    return row.value(u"Day"_s + column.name).toDateTime().date();
}

bool returnsNoMoreIn(const Recordset& row, const Table& table) {
    return std::ranges::any_of(table.columns, [&row](const Column& column) {
        return column.coming.when == When::NoMore && dayOf(row, column).isValid();
    });
}

/// The day that a column of a row has to tell; none outside the span.
std::optional<QDate> dayToTell(const Recordset& row, const Table& table, const Column& column, const Span& span) {
    QDate day = dayOf(row, column);
    if (!day.isValid()) return {};
    if (column.coming.when == When::EachYear) {
        if (returnsNoMoreIn(row, table)) return {};
        day = nextReturn(day, span.today);
    }
    return day >= span.first() && day <= span.last() ? std::optional(day) : std::nullopt;
}

QString whatComes(const Column& column) {
    if (!column.coming.what.isEmpty()) return column.coming.what;
    const QString label = column.label;
    return label.endsWith(u':') ? label.chopped(1) : label;
}

Found found(const Recordset& row, const Table& table, const Column& column, const QDate& day, const QDate& today) {
    return {.date = {.date = day,
                     .days = static_cast<int>(today.daysTo(day)),
                     .table = table.name,
                     .column = column.name,
                     .id = row.value(u"ID"_s).toLongLong(),
                     .memberID = row.value(u"MemberID"_s).toLongLong(),
                     .member = row.value(u"LegalName"_s).toString(),
                     .record = row.value(u"Record"_s).toString(),
                     .what = whatComes(column)},
            .seq = row.value(u"Seq"_s).toInt()};
}

void look(Connection& connection, const Table& table, const Span& span, std::vector<Found>& all) {
    Recordset row;
    for (row.open(statement(table, span), connection); !row.eof(); row.moveNext()) {
        for (const Column& column : table.columns) {
            if (!tells(column)) continue;
            if (const auto day = dayToTell(row, table, column, span))
                all.push_back(found(row, table, column, *day, span.today));
        }
    }
}

}  // namespace

std::vector<ComingDate> comingDates(Connection& connection, const QDate& today, int days) {
    const Connection::ReadHold hold(connection);
    std::vector<Found> all;
    for (const Table& table : allTables()) {
        if (std::ranges::any_of(table.columns, tells)) look(connection, table, {today, days}, all);
    }
    std::ranges::stable_sort(all, {}, [](const Found& each) { return std::tuple(each.date.date, each.seq); });
    std::vector<ComingDate> dates;
    dates.reserve(all.size());
    for (Found& each : all)
        dates.push_back(std::move(each.date));
    return dates;
}

QDate nextReturn(const QDate& day, const QDate& today) {
    const auto in = [&day](int year) {
        const int last = QDate(year, day.month(), 1).daysInMonth();
        return QDate(year, day.month(), std::min(day.day(), last));
    };
    if (day >= today) return day;
    const QDate thisYear = in(today.year());
    return thisYear >= today ? thisYear : in(today.year() + 1);
}

QString daysText(int days) {
    if (days == 0) return u"Today"_s;
    if (days == 1) return u"Tomorrow"_s;
    if (days == -1) return u"Yesterday"_s;
    return days > 0 ? u"In %1 days"_s.arg(days) : u"%1 days ago"_s.arg(-days);
}

}  // namespace data
