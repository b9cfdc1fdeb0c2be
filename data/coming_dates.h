#pragma once

#include <QDate>
#include <QString>
#include <vector>

namespace data {

class Connection;

/// Days back from today for which something that has run out is still told.
inline constexpr int daysRunOut = 90;

/// A day on which something of a record expires, falls due, begins or returns.
struct ComingDate {
    QDate date;
    int days = 0;  ///< from today; below 0 when it is past
    QLatin1StringView table;
    QLatin1StringView column;
    qint64 id = 0;  ///< of the row
    qint64 memberID = 0;
    QString member;
    QString record;  ///< the first text of the row that isn't empty
    QString what;    ///< the field's label without its colon, or the word for a day that returns
};

/// What comes in so many days from today, today included, and what ran out in the last `daysRunOut` days, the earliest
/// first; on one day in the order of the family. Which columns count is told by the tables. Records of nobody are left
/// out. Throws the provider's errors.
[[nodiscard]] std::vector<ComingDate> comingDates(Connection& connection, const QDate& today, int days);

/// The first return of a day that isn't before today, nor before the day itself. One of 29 February is the 28th in a
/// year without it: a birthday is kept in its month.
[[nodiscard]] QDate nextReturn(const QDate& day, const QDate& today);

/// "Today", "Tomorrow", "In 12 days", "Yesterday", "12 days ago".
[[nodiscard]] QString daysText(int days);

}  // namespace data
