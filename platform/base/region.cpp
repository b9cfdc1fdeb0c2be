#include "platform/base/region.h"

#include <QLocale>
#include <algorithm>

#include "platform/base/text_scanner.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr char16_t minusSign = u'\u2212';

/// Keyboards have no key for many a separator: what is typed in its place is read as well.
QString readAs(QStringView separator) {
    for (const QStringView alike : {QStringView(u" \u00A0\u202F"), QStringView(u"'\u2019")}) {
        if (!separator.isEmpty() && alike.contains(separator)) return alike.toString();
    }
    return separator.toString();
}

void takeNumbers(Region& region, const QLocale& locale) {
    // A digit outside the basic plane is no single character: the usual ones stand for those.
    if (locale.zeroDigit().size() == 1) region.zero = locale.zeroDigit().front();
    region.decimalPoint = locale.decimalPoint().front();
    region.thousands = locale.groupSeparator();
    region.thousandsTyped = readAs(region.thousands);
    region.minusTyped = u"-"_s;
    if (locale.negativeSign().endsWith(minusSign)) region.minusTyped += minusSign;
}

/// The parts of the locale's short form without what some have around them, and with the whole year.
void takeDateForm(Region& region, const QString& form) {
    const auto isPart = [](QChar c) { return c == u'd' || c == u'M' || c == u'y'; };
    const auto end = std::find_if_not(form.begin(), form.end(), isPart);
    const auto separator = std::find_if(end, form.end(), [](QChar c) { return c.isPunct(); });
    region.dateSeparator = separator == form.end() ? u'/' : *separator;
    if (form.startsWith(u'y')) {
        region.dateOrder = Region::DateOrder::YearMonthDay;
    } else if (form.startsWith(u'd')) {
        region.dateOrder = Region::DateOrder::DayMonthYear;
    }
    region.shortDate = form;
    if (!form.contains("yyyy"_L1)) region.shortDate.replace("yy"_L1, "yyyy"_L1);
}

QString withoutStop(const QString& name) {
    return name.endsWith(u'.') ? name.chopped(1) : name;
}

Region::Month monthOf(const QLocale& locale, int number) {
    const QString alone = locale.standaloneMonthName(number, QLocale::ShortFormat);
    Region::Month month{.shortName = withoutStop(alone), .names = {}};
    month.names = {locale.monthName(number), locale.standaloneMonthName(number)};
    for (const QString& shortened : {locale.monthName(number, QLocale::ShortFormat), alone})
        month.names << shortened << withoutStop(shortened);
    month.names.removeDuplicates();
    // A bare number is a month by its place, not by its name.
    month.names.removeIf(
        [](const QString& name) { return std::ranges::all_of(name, [](QChar c) { return c.isDigit(); }); });
    return month;
}

/// The English names are read as well, but for one that means another month here.
void addEnglishNames(Region& region) {
    constexpr int shortened = 3;
    const QLocale english(QLocale::English);
    QStringList taken;
    for (const Region::Month& month : region.months)
        taken += month.names;
    for (int number = 1; Region::Month & month : region.months) {
        const QString name = english.monthName(number++);
        for (const QString& added : {name, name.first(shortened)}) {
            if (!taken.contains(added, Qt::CaseInsensitive)) month.names << added;
        }
    }
}

void takeMonths(Region& region, const QLocale& locale) {
    for (int number = 1; Region::Month & month : region.months) {
        month = monthOf(locale, number++);
        for (QString& name : month.names) {
            name = region.withUsualDigits(name);
            region.numbersMonths = region.numbersMonths || isDigit(name.front());
        }
    }
    addEnglishNames(region);
}

void takeTime(Region& region, const QLocale& locale) {
    region.countsHalfDays = locale.timeFormat(QLocale::ShortFormat).contains(u'a', Qt::CaseInsensitive);
    const auto readable = [](const QString& name, const QString& usual) {
        return std::ranges::all_of(name, [](QChar c) { return c.isLetter(); }) ? name : usual;
    };
    region.morning = readable(locale.amText(), u"AM"_s);
    region.afternoon = readable(locale.pmText(), u"PM"_s);
}

QString moved(QString text, QChar fromZero, QChar toZero) {
    if (fromZero == toZero) return text;
    for (QChar& c : text) {
        const int value = c.unicode() - fromZero.unicode();
        if (value >= 0 && value <= 9) c = QChar(toZero.unicode() + value);
    }
    return text;
}

}  // namespace

Region Region::of(const QLocale& locale) {
    const QLocale unitedStates(QLocale::English, QLocale::UnitedStates);
    const QString form = locale.dateFormat(QLocale::ShortFormat);
    const QLocale& dates = form == QLocale::c().dateFormat(QLocale::ShortFormat) ? unitedStates : locale;
    const QString currency = locale.currencySymbol();
    Region region;
    takeNumbers(region, locale);
    region.currency = currency.isEmpty() ? unitedStates.currencySymbol() : currency;
    takeDateForm(region, dates.dateFormat(QLocale::ShortFormat));
    takeMonths(region, dates);
    takeTime(region, dates);
    return region;
}

const Region& Region::unitedStates() {
    static const Region region = of(QLocale(QLocale::English, QLocale::UnitedStates));
    return region;
}

QString Region::withOwnDigits(QString text) const {
    return moved(std::move(text), u'0', zero);
}

QString Region::withUsualDigits(QString text) const {
    return moved(std::move(text), zero, u'0');
}

const Region& systemRegion() {
    static const Region region = Region::of(QLocale::system());
    return region;
}

}  // namespace platform
