#include "platform/base/date_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "platform/base/clock.h"
#include "platform/base/region.h"
#include "platform/base/runtime_error.h"
#include "platform/base/text_scanner.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

const QDate dayZero(1899, 12, 30);

bool isLetter(QChar c) {
    return c.isLetter() || c.isMark() || c.isSurrogate();
}

/// A run of digits, a month's name, another run of letters, or one other character: a view into the text that is read.
struct Token {
    enum class Kind { Number, Month, Word, Mark };
    Kind kind;
    QStringView text;
    int value;  ///< of a number, -1 for one that no date or time could hold; of a month, 1 to 12
    bool afterBlank;
};

/// A name ends where its last letters or digits end.
bool isWhole(QStringView name, QStringView rest) {
    if (rest.size() == name.size()) return true;
    const QChar last = name.back();
    const QChar next = rest[name.size()];
    return !(isLetter(last) && isLetter(next)) && !(isDigit(last) && isDigit(next));
}

/// The longest name of a month that a text begins with, as a token; nothing where it begins with none.
std::optional<Token> monthAtFront(QStringView rest, const Region& region) {
    std::optional<Token> found;
    for (std::size_t index = 0; index < region.months.size(); ++index) {
        for (const QString& name : region.months[index].names) {
            const bool longer = !found || name.size() > found->text.size();
            if (!longer || !rest.startsWith(name, Qt::CaseInsensitive) || !isWhole(name, rest)) continue;
            found = Token{Token::Kind::Month, rest.first(name.size()), static_cast<int>(index) + 1, false};
        }
    }
    return found;
}

Token numberToken(QStringView digits) {
    bool fits = false;
    const int value = digits.toInt(&fits);
    return {Token::Kind::Number, digits, fits ? value : -1, false};
}

Token takeToken(TextScanner& scanner, QStringView text, const Region& region) {
    const qsizetype at = scanner.position();
    if (isLetter(scanner.peek()) || region.numbersMonths) {
        if (const auto month = monthAtFront(text.sliced(at), region)) {
            scanner.goTo(at + month->text.size());
            return *month;
        }
    }
    if (const auto digits = scanner.takeWhile(isDigit); !digits.isEmpty()) return numberToken(digits);
    if (const auto word = scanner.takeWhile(isLetter); !word.isEmpty()) return {Token::Kind::Word, word, 0, false};
    scanner.goTo(at + 1);
    return {Token::Kind::Mark, text.sliced(at, 1), 0, false};
}

std::vector<Token> tokensOf(QStringView text, const Region& region) {
    std::vector<Token> tokens;
    tokens.reserve(8);
    TextScanner scanner(text);
    for (;;) {
        const bool afterBlank = !scanner.takeWhile([](QChar c) { return c == u' '; }).isEmpty();
        if (scanner.atEnd()) return tokens;
        tokens.push_back(takeToken(scanner, text, region));
        tokens.back().afterBlank = afterBlank;
    }
}

std::optional<QDate> firstOf(std::initializer_list<std::optional<QDate>> readings) {
    for (const auto& reading : readings) {
        if (reading) return reading;
    }
    return std::nullopt;
}

/// Reads the tokens of one text as a date, a time, or one of each.
class DateReader {
public:
    /// `text`: in the usual digits; it must outlive the reader.
    DateReader(QStringView text, const Region& region) : region_(region), tokens_(tokensOf(text, region)) {
        dateMarks_ += region.dateSeparator;
        if (region.dateSeparator != u'.') timeMarks_ += u'.';
    }

    std::optional<QDateTime> read() {
        std::optional<QDate> date;
        std::optional<QTime> time;
        while (at_ < tokens_.size()) {
            if (at_ > 0 && !tokens_[at_].afterBlank) return std::nullopt;
            const bool timeNext = timeStartsAt(at_);
            if (timeNext ? time.has_value() : date.has_value()) return std::nullopt;
            if (timeNext) {
                time = takeTime();
            } else {
                date = takeDate();
            }
            if (timeNext ? !time : !date) return std::nullopt;
        }
        if (!date && !time) return std::nullopt;
        return QDateTime(date.value_or(dayZero), time.value_or(QTime(0, 0)), Qt::UTC);
    }

private:
    [[nodiscard]] bool isNumber(std::size_t at) const {
        return at < tokens_.size() && tokens_[at].kind == Token::Kind::Number;
    }
    [[nodiscard]] bool isMark(std::size_t at, QStringView marks) const {
        return at < tokens_.size() && tokens_[at].kind == Token::Kind::Mark && marks.contains(tokens_[at].text);
    }
    [[nodiscard]] bool isHalfOfDay(std::size_t at) const {
        if (at >= tokens_.size()) return false;
        const std::array<QStringView, 6> halves{u"am", u"pm", u"a", u"p", region_.morning, region_.afternoon};
        return std::any_of(halves.begin(), halves.end(), [word = tokens_[at].text](QStringView half) {
            return word.compare(half, Qt::CaseInsensitive) == 0;
        });
    }
    [[nodiscard]] bool isAfternoon(QStringView half) const {
        // The region's own names go first: in Malay the morning begins with a P.
        if (half.compare(region_.morning, Qt::CaseInsensitive) == 0) return false;
        return half.compare(region_.afternoon, Qt::CaseInsensitive) == 0 || half.startsWith(u'p', Qt::CaseInsensitive);
    }
    [[nodiscard]] bool timeStartsAt(std::size_t at) const {
        return isNumber(at) && (isMark(at + 1, timeMarks_) || isHalfOfDay(at + 1));
    }

    std::optional<QTime> takeTime() {
        std::array<int, 3> parts{tokens_[at_++].value, 0, 0};
        for (std::size_t part = 1; part < parts.size() && isMark(at_, timeMarks_) && isNumber(at_ + 1); ++part) {
            parts[part] = tokens_[at_ + 1].value;
            at_ += 2;
        }
        auto& [hour, minute, second] = parts;
        if (!QTime::isValid(hour, minute, second)) return std::nullopt;
        if (isHalfOfDay(at_) && hour <= 12) {
            hour = hour % 12 + (isAfternoon(tokens_[at_].text) ? 12 : 0);
        }
        if (isHalfOfDay(at_)) ++at_;
        return QTime(hour, minute, second);
    }

    /// The date, if there is such a day and its year can be held.
    [[nodiscard]] std::optional<QDate> legal(int month, int day, int year) const {
        int full = year;
        if (year >= 0 && year < 100) {
            const int window = region_.firstShortYear;
            full += (window - year + 99) / 100 * 100;
        }
        const bool fits = full >= 100 && full <= 9999 && QDate::isValid(full, month, day);
        return fits ? std::optional(QDate(full, month, day)) : std::nullopt;
    }

    [[nodiscard]] std::optional<QDate> fromTwoNumbers(int first, int second) const {
        const int thisYear = systemClock().today().year();
        const auto monthFirst = legal(first, second, thisYear);
        const auto dayFirst = legal(second, first, thisYear);
        const bool daysLead = region_.dateOrder == Region::DateOrder::DayMonthYear;
        return firstOf({daysLead ? dayFirst : monthFirst, daysLead ? monthFirst : dayFirst, legal(first, 1, second),
                        legal(second, 1, first)});
    }

    /// The region's own order first, then the others of the world; the odd ones that no region has last.
    [[nodiscard]] std::optional<QDate> fromThreeNumbers(int a, int b, int c) const {
        const auto monthDayYear = legal(a, b, c);
        const auto dayMonthYear = legal(b, a, c);
        const auto yearMonthDay = legal(b, c, a);
        const bool daysLead = region_.dateOrder == Region::DateOrder::DayMonthYear;
        const auto usual = region_.dateOrder == Region::DateOrder::YearMonthDay
                               ? firstOf({yearMonthDay, monthDayYear, dayMonthYear})
                               : firstOf({daysLead ? dayMonthYear : monthDayYear, yearMonthDay,
                                          daysLead ? monthDayYear : dayMonthYear});
        // A year in full leaves no doubt about its place; only short ones are tried in the odd places too.
        if (usual || a > 99 || b > 99 || c > 99) return usual;
        return firstOf({daysLead ? legal(c, a, b) : legal(a, c, b), legal(c, b, a)});
    }

    [[nodiscard]] std::optional<QDate> fromMonthAndNumbers(int month, const std::vector<int>& numbers) const {
        if (numbers.size() == 1) {
            return firstOf({legal(month, numbers[0], systemClock().today().year()), legal(month, 1, numbers[0])});
        }
        return firstOf({legal(month, numbers[0], numbers[1]), legal(month, numbers[1], numbers[0])});
    }

    /// Takes a month's name or a number; false for anything else, and for a second name.
    bool takeItem(std::optional<int>& month, std::vector<int>& numbers) {
        if (at_ == tokens_.size()) return false;
        const Token& token = tokens_[at_];
        const bool isNumber = token.kind == Token::Kind::Number;
        if (!isNumber && (token.kind != Token::Kind::Month || month)) return false;
        ++at_;
        if (isNumber) {
            numbers.push_back(token.value);
        } else {
            month = token.value;
        }
        return true;
    }

    std::optional<QDate> takeDate() {
        std::optional<int> month;
        std::vector<int> numbers;
        for (bool more = true; more;) {
            if (!takeItem(month, numbers)) return std::nullopt;
            const bool separated = isMark(at_, dateMarks_);
            if (separated) ++at_;
            more = separated || (at_ < tokens_.size() && tokens_[at_].kind != Token::Kind::Mark && !timeStartsAt(at_));
        }
        const std::size_t items = numbers.size() + (month ? 1 : 0);
        if (items < 2 || items > 3) return std::nullopt;
        if (month) return fromMonthAndNumbers(*month, numbers);
        return items == 2 ? fromTwoNumbers(numbers[0], numbers[1])
                          : fromThreeNumbers(numbers[0], numbers[1], numbers[2]);
    }

    const Region& region_;
    QString dateMarks_ = u"/-,"_s;
    QString timeMarks_ = u":"_s;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
};

std::optional<QDateTime> read(const QString& text, const Region& region) {
    const QString usual = region.withUsualDigits(text);
    return DateReader(usual, region).read();
}

QString twoDigits(int number) {
    return u"%1"_s.arg(number % 100, 2, 10, QChar(u'0'));
}

/// The separator is always ":", since the dates of some regions have the one that their times have.
QString longTime(const QTime& time, const Region& region) {
    const QString behindHour = u':' + twoDigits(time.minute()) + u':' + twoDigits(time.second());
    if (!region.countsHalfDays) return twoDigits(time.hour()) + behindHour;
    const int hour = time.hour() % 12 == 0 ? 12 : time.hour() % 12;
    return QString::number(hour) + behindHour + u' ' + (time.hour() < 12 ? region.morning : region.afternoon);
}

/// A run of one letter of a date pattern.
QString patternPart(const QDate& date, QChar letter, qsizetype length) {
    if (letter == u'y') return length > 2 ? QString::number(date.year()) : twoDigits(date.year());
    const int number = letter == u'm' ? date.month() : date.day();
    return length > 1 ? twoDigits(number) : QString::number(number);
}

QStringView lettersOf(Region::DateOrder order) {
    switch (order) {
        case Region::DateOrder::DayMonthYear:
            return u"dmy";
        case Region::DateOrder::YearMonthDay:
            return u"ymd";
        case Region::DateOrder::MonthDayYear:
            break;
    }
    return u"mdy";
}

}  // namespace

bool isDate(const QString& text, const Region& region) {
    return read(text, region).has_value();
}

QDateTime toDate(const QString& text, const Region& region) {
    const auto date = read(text, region);
    if (!date) throw RuntimeError(Error::TypeMismatch);
    return *date;
}

QString dateText(const QDateTime& date, const Region& region) {
    if (!date.isValid()) return {};
    const auto day = [&] { return formatDate(date, region.shortDate, region); };
    const auto time = [&] { return region.withOwnDigits(longTime(date.time(), region)); };
    if (date.date() == dayZero) return time();
    return date.time() == QTime(0, 0) ? day() : day() + u' ' + time();
}

QString mediumDate(const QDate& date, const Region& region) {
    if (!date.isValid()) return {};
    const QString& month = region.months[static_cast<std::size_t>(date.month() - 1)].shortName;
    return region.withOwnDigits(twoDigits(date.day())) + u'-' + month + u'-' +
           region.withOwnDigits(twoDigits(date.year()));
}

QString formatDate(const QDateTime& date, const QString& pattern, const Region& region) {
    if (!date.isValid()) return {};
    QStringList parts;
    for (const QChar letter : lettersOf(region.dateOrder)) {
        const qsizetype length = pattern.count(letter, Qt::CaseInsensitive);
        if (length > 0) parts << patternPart(date.date(), letter, length);
    }
    return region.withOwnDigits(parts.join(region.dateSeparator));
}

}  // namespace platform
