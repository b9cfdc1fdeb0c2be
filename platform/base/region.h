#pragma once

#include <QString>
#include <QStringList>
#include <array>

class QLocale;

namespace platform {

/// How numbers and dates are written where the user lives. What is stored, and what stands in a statement or a key,
/// knows nothing of it.
struct Region {
    enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

    QChar zero = u'0';  ///< the digits are this one and the nine behind it; the usual ones are read everywhere
    QChar decimalPoint = u'.';
    QString thousands;       ///< what is shown between thousands; empty for nothing
    QString thousandsTyped;  ///< all characters that are read as that
    QString minusTyped;      ///< all characters that are read as a minus; "-" is shown
    QString currency;

    DateOrder dateOrder = DateOrder::MonthDayYear;
    QChar dateSeparator = u'/';
    QString shortDate;          ///< a pattern of d, M and y with the whole year: "M/d/yyyy"
    int firstShortYear = 1930;  ///< a year of two digits lies in the hundred years from here

    struct Month {
        QString shortName;
        QStringList names;  ///< every name that is read, the English ones among them; in the usual digits
    };
    std::array<Month, 12> months;
    bool numbersMonths = false;  ///< some of their names begin with a digit

    bool countsHalfDays = true;  ///< hours from 1 to 12 with the names of the half days
    QString morning;
    QString afternoon;

    /// The region of a locale. "C" says nothing of its user, also as a single category: there the United States stand.
    [[nodiscard]] static Region of(const QLocale& locale);
    /// For texts that no user types or sees.
    [[nodiscard]] static const Region& unitedStates();

    /// The text with its usual digits written as here.
    [[nodiscard]] QString withOwnDigits(QString text) const;
    /// The text with the digits of here written as the usual ones.
    [[nodiscard]] QString withUsualDigits(QString text) const;
};

/// The region of the system's locale (LC_ALL, LC_NUMERIC, LC_TIME) as it was when the program started. It never changes
/// while the program runs: a text that was shown is read back by the same rules.
[[nodiscard]] const Region& systemRegion();

}  // namespace platform
