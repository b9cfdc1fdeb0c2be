#include "lists/coming_rows.h"

#include <algorithm>

#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace lists {

namespace {

using data::ComingDate;

struct RowColumn {
    QLatin1StringView name;
    platform::ColumnKind kind;
};

constexpr RowColumn columns[] = {
    {"Date"_L1, platform::ColumnKind::Date},   {"Days"_L1, platform::ColumnKind::Text},
    {"Member"_L1, platform::ColumnKind::Text}, {"Category"_L1, platform::ColumnKind::Text},
    {"Record"_L1, platform::ColumnKind::Text}, {"What"_L1, platform::ColumnKind::Text},
};

const RowColumn& columnNamed(const QString& name) {
    const auto* found = std::ranges::find(columns, name, &RowColumn::name);
    if (found == std::end(columns)) throw platform::RuntimeError(platform::Error::NoSuchItem);
    return *found;
}

bool areSame(const ComingDate& one, const ComingDate& other) {
    return one.table == other.table && one.column == other.column && one.id == other.id;
}

}  // namespace

void ComingRows::take(std::vector<ComingDate> dates) {
    if (hasCurrentRow()) {
        const auto again =
            std::ranges::find_if(dates, [this](const ComingDate& each) { return areSame(each, current()); });
        if (again != dates.end()) row_ = static_cast<int>(std::distance(dates.begin(), again));
    }
    dates_ = std::move(dates);
    row_ = std::min(std::max(row_, 0), rowCount() - 1);
    Q_EMIT rowShown();
}

void ComingRows::moveTo(int row) {
    row_ = row;
    Q_EMIT rowShown();
}

QVariant ComingRows::value(const QString& column) const {
    if (!hasCurrentRow()) throw platform::RuntimeError(platform::Error::NoCurrentRecord);
    const RowColumn& found = columnNamed(column);
    return rowAt(row_).at(static_cast<std::size_t>(&found - columns));
}

void ComingRows::setValue(const QString& /*column*/, const QVariant& /*value*/) {
    throw platform::RuntimeError(platform::Error::NotUpdatable);
}

platform::ColumnKind ComingRows::columnKind(const QString& column) const {
    return columnNamed(column).kind;
}

QStringList ComingRows::columnNames() const {
    QStringList names;
    for (const RowColumn& column : columns)
        names << column.name;
    return names;
}

std::vector<QVariant> ComingRows::rowAt(int row) const {
    const ComingDate& date = dates_.at(static_cast<std::size_t>(row));
    return {QDateTime(date.date, QTime(0, 0), Qt::UTC),
            data::daysText(date.days),
            date.member,
            categoryOf_(date.table),
            date.record,
            date.what};
}

}  // namespace lists
