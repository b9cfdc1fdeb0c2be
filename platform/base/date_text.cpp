#include "platform/base/date_text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "platform/base/clock.h"
#include "platform/base/runtime_error.h"
#include "platform/base/text_scanner.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr std::array<QStringView, 12> monthNames{u"january",   u"february", u"march",    u"april",
                                                 u"may",       u"june",     u"july",     u"august",
                                                 u"september", u"october",  u"november", u"december"};

const QDate dayZero(1899, 12, 30);

/// A run of digits, a run of letters, or one other character: a view into the text that is read.
struct Token {
    enum class Kind { Number, Word, Mark };
    Kind kind;
    QStringView text;
    int value;  ///< of a number; -1 for one that no date or time could hold
    bool afterBlank;
};

std::vector<Token> tokensOf(QStringView text) {
    std::vector<Token> tokens;
    tokens.reserve(8);
    TextScanner scanner(text);
    for (;;) {
        const bool afterBlank = !scanner.takeWhile([](QChar c) { return c == u' '; }).isEmpty();
        if (scanner.atEnd()) return tokens;
        if (const auto digits = scanner.takeWhile(isDigit); !digits.isEmpty()) {
            bool fits = false;
            const int value = digits.toInt(&fits);
            tokens.push_back({Token::Kind::Number, digits, fits ? value : -1, afterBlank});
        } else if (const auto word = scanner.takeWhile([](QChar c) { return c.isLetter(); }); !word.isEmpty()) {
            tokens.push_back({Token::Kind::Word, word, 0, afterBlank});
        } else {
            const qsizetype at = scanner.position();
            scanner.goTo(at + 1);
            tokens.push_back({Token::Kind::Mark, text.sliced(at, 1), 0, afterBlank});
        }
    }
}

/// 1 to 12 for a month's name or its first three letters.
std::optional<int> monthOf(QStringView word) {
    for (std::size_t i = 0; i < monthNames.size(); ++i) {
        const QStringView name = monthNames[i];
        const bool same = word.compare(name, Qt::CaseInsensitive) == 0;
        if (same || word.compare(name.first(3), Qt::CaseInsensitive) == 0) return static_cast<int>(i) + 1;
    }
    return std::nullopt;
}

int fullYear(int year) {
    if (year < 0 || year > 99) return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

/// The date, if there is such a day and its year can be held.
std::optional<QDate> legal(int month, int day, int year) {
    const int full = fullYear(year);
    const bool fits = full >= 100 && full <= 9999 && QDate::isValid(full, month, day);
    return fits ? std::optional(QDate(full, month, day)) : std::nullopt;
}

std::optional<QDate> firstOf(std::initializer_list<std::optional<QDate>> readings) {
    for (const auto& reading : readings) {
        if (reading) return reading;
    }
    return std::nullopt;
}

std::optional<QDate> fromTwoNumbers(int first, int second) {
    const int thisYear = systemClock().today().year();
    return firstOf({legal(first, second, thisYear), legal(second, first, thisYear), legal(first, 1, second),
                    legal(second, 1, first)});
}

std::optional<QDate> fromThreeNumbers(int first, int second, int third) {
    const auto usual = firstOf({legal(first, second, third), legal(second, third, first), legal(second, first, third)});
    // A year in full leaves no doubt about its place; only short ones are tried in the odd places too.
    if (usual || first > 99 || second > 99 || third > 99) return usual;
    return firstOf({legal(first, third, second), legal(third, second, first)});
}

std::optional<QDate> fromMonthAndNumbers(int month, const std::vector<int>& numbers) {
    if (numbers.size() == 1) {
        return firstOf({legal(month, numbers[0], systemClock().today().year()), legal(month, 1, numbers[0])});
    }
    return firstOf({legal(month, numbers[0], numbers[1]), legal(month, numbers[1], numbers[0])});
}

/// Reads the tokens of one text as a date, a time, or one of each.
class DateReader {
public:
    explicit DateReader(QStringView text) : tokens_(tokensOf(text)) {}

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
        if (at >= tokens_.size() || tokens_[at].kind != Token::Kind::Word) return false;
        constexpr std::array<QStringView, 4> halves{u"am", u"pm", u"a", u"p"};
        return std::any_of(halves.begin(), halves.end(), [word = tokens_[at].text](QStringView half) {
            return word.compare(half, Qt::CaseInsensitive) == 0;
        });
    }
    [[nodiscard]] bool timeStartsAt(std::size_t at) const {
        return isNumber(at) && (isMark(at + 1, u":.") || isHalfOfDay(at + 1));
    }

    std::optional<QTime> takeTime() {
        std::array<int, 3> parts{tokens_[at_++].value, 0, 0};
        for (std::size_t part = 1; part < parts.size() && isMark(at_, u":.") && isNumber(at_ + 1); ++part) {
            parts[part] = tokens_[at_ + 1].value;
            at_ += 2;
        }
        auto& [hour, minute, second] = parts;
        if (!QTime::isValid(hour, minute, second)) return std::nullopt;
        if (isHalfOfDay(at_) && hour <= 12) {
            const bool afternoon = tokens_[at_].text.startsWith(u'p', Qt::CaseInsensitive);
            hour = hour % 12 + (afternoon ? 12 : 0);
        }
        if (isHalfOfDay(at_)) ++at_;
        return QTime(hour, minute, second);
    }

    /// Takes a month's name or a number; false for anything else, and for a second name.
    bool takeItem(std::optional<int>& month, std::vector<int>& numbers) {
        if (at_ == tokens_.size() || tokens_[at_].kind == Token::Kind::Mark) return false;
        const Token& token = tokens_[at_++];
        if (token.kind == Token::Kind::Number) {
            numbers.push_back(token.value);
            return true;
        }
        if (month) return false;
        month = monthOf(token.text);
        return month.has_value();
    }

    std::optional<QDate> takeDate() {
        std::optional<int> month;
        std::vector<int> numbers;
        for (bool more = true; more;) {
            if (!takeItem(month, numbers)) return std::nullopt;
            const bool separated = isMark(at_, u"/-,");
            if (separated) ++at_;
            more = separated || (at_ < tokens_.size() && tokens_[at_].kind != Token::Kind::Mark && !timeStartsAt(at_));
        }
        const std::size_t items = numbers.size() + (month ? 1 : 0);
        if (items < 2 || items > 3) return std::nullopt;
        if (month) return fromMonthAndNumbers(*month, numbers);
        return items == 2 ? fromTwoNumbers(numbers[0], numbers[1])
                          : fromThreeNumbers(numbers[0], numbers[1], numbers[2]);
    }

    std::vector<Token> tokens_;
    std::size_t at_ = 0;
};

QString shortDate(const QDate& date) {
    return QString::number(date.month()) + u'/' + QString::number(date.day()) + u'/' + QString::number(date.year());
}

QString longTime(const QTime& time) {
    const int hour = time.hour() % 12 == 0 ? 12 : time.hour() % 12;
    return u"%1:%2:%3 %4"_s.arg(hour)
        .arg(time.minute(), 2, 10, QChar(u'0'))
        .arg(time.second(), 2, 10, QChar(u'0'))
        .arg(time.hour() < 12 ? u"AM"_s : u"PM"_s);
}

QString twoDigits(int number) {
    return u"%1"_s.arg(number % 100, 2, 10, QChar(u'0'));
}

/// A run of one letter of a date pattern.
QString patternPart(const QDate& date, QChar letter, qsizetype length) {
    if (letter == u'y') return length > 2 ? QString::number(date.year()) : twoDigits(date.year());
    const int number = letter == u'm' ? date.month() : date.day();
    return length > 1 ? twoDigits(number) : QString::number(number);
}

}  // namespace

bool isDate(const QString& text) {
    return DateReader(text).read().has_value();
}

QDateTime toDate(const QString& text) {
    const auto date = DateReader(text).read();
    if (!date) throw RuntimeError(13);
    return *date;
}

QString dateText(const QDateTime& date) {
    if (!date.isValid()) return {};
    if (date.date() == dayZero) return longTime(date.time());
    const bool midnight = date.time() == QTime(0, 0);
    return midnight ? shortDate(date.date()) : shortDate(date.date()) + u' ' + longTime(date.time());
}

QString mediumDate(const QDate& date) {
    if (!date.isValid()) return {};
    QString month = monthNames[static_cast<std::size_t>(date.month() - 1)].first(3).toString();
    month[0] = month[0].toUpper();
    return twoDigits(date.day()) + u'-' + month + u'-' + twoDigits(date.year());
}

QString formatDate(const QDateTime& date, const QString& pattern) {
    if (!date.isValid()) return {};
    QString shown;
    const QString lower = pattern.toLower();
    for (TextScanner scanner(lower); !scanner.atEnd();) {
        const QChar letter = scanner.peek();
        const QStringView run = scanner.takeWhile([letter](QChar c) { return c == letter; });
        const bool isPart = letter == u'm' || letter == u'd' || letter == u'y';
        shown += isPart ? patternPart(date.date(), letter, run.size()) : run.toString();
    }
    return shown;
}

}  // namespace platform
