#include "find/sought_words.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "data/column_type.h"
#include "find/folding.h"
#include "platform/base/conversions.h"
#include "platform/base/display_format.h"

using namespace Qt::StringLiterals;

namespace find {

namespace {

/// Of one format: the days of ninety years, in three MB.
constexpr std::size_t mostDatesKept = 32'768;
/// A double has so many digits for sure.
constexpr double mostDigits = 1e15;

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

std::string digitsIn(std::string_view text) {
    std::string digits;
    std::ranges::copy_if(text, std::back_inserter(digits), isDigit);
    return digits;
}

/// Each of the digits is in the text, and as often.
bool hasDigits(std::string_view text, std::string_view digits) {
    std::array<int, 10> left{};
    for (const char character : text)
        if (isDigit(character)) ++left.at(static_cast<std::size_t>(character - '0'));
    return std::ranges::all_of(digits,
                               [&](char digit) { return left.at(static_cast<std::size_t>(digit - '0'))-- > 0; });
}

/// A byte that most texts are full of is a bad one to look for, and the front of a letter beyond ASCII the worst.
std::size_t anchorOf(std::string_view word) {
    static constexpr std::string_view common = "hlrsn0129ioate";
    const auto commonness = [](char byte) {
        if ((static_cast<unsigned char>(byte) & 0xC0U) == 0xC0U) return common.size() + 1;
        const std::size_t found = common.find(byte);
        return found == std::string_view::npos ? 0 : found + 1;
    };
    const auto rarest = std::ranges::min_element(word, {}, commonness);
    return static_cast<std::size_t>(rarest - word.begin());
}

SoughtWord soughtWord(const QString& word, const platform::Region& region) {
    SoughtWord sought{.text = word.toStdString()};
    sought.digits = digitsIn(sought.text);
    sought.anchor = anchorOf(sought.text);
    const auto consistsOf = [&](const QString& signs) {
        return std::ranges::all_of(word, [&](QChar sign) { return sign.isDigit() || signs.contains(sign); });
    };
    const bool counts = !sought.digits.empty();
    sought.inNumbers = counts && consistsOf(u"-.%"_s + folded(region.decimalPoint + region.thousands));
    sought.inDates = counts && consistsOf(u"-:"_s + folded(QString(region.dateSeparator)));
    return sought;
}

/// Whether the digits stand in a number with so many decimals, in whatever form. True also where that takes more than a
/// glance.
bool mayHaveDigits(double value, int decimals, std::string_view sought) {
    constexpr std::array powers{1.0, 10.0, 100.0, 1000.0, 10000.0};
    if (decimals < 0 || decimals >= static_cast<int>(powers.size())) return true;
    const double scaled = std::abs(value) * powers.at(static_cast<std::size_t>(decimals));
    const auto whole = scaled < mostDigits ? qint64{std::llround(scaled)} : 0;
    if (scaled >= mostDigits || std::abs(scaled - static_cast<double>(whole)) > 1e-6) return true;
    // Ahead of the decimals there is one more digit at least.
    std::array<char, 32> digits{};
    digits.fill('0');
    char* const begin = digits.data() + powers.size();
    const char* const end = std::to_chars(begin, digits.data() + digits.size(), whole).ptr;
    const char* const first = std::min<const char*>(begin, end - decimals - 1);
    return std::string_view(first, static_cast<std::size_t>(end - first)).find(sought) != std::string_view::npos;
}

}  // namespace

std::size_t SoughtWord::placeIn(std::string_view folded) const {
    for (std::size_t at = anchor; at < folded.size(); ++at) {
        at = folded.find(text[anchor], at);
        if (at == std::string_view::npos) break;
        if (folded.substr(at - anchor).starts_with(text)) return at - anchor;
    }
    return std::string_view::npos;
}

int decimalsOf(const data::Column& column) {
    const QString format = column.format;
    const qsizetype point = format.indexOf(u'.');
    if (format.endsWith(u'%')) return -1;
    return point < 0 ? 0 : static_cast<int>(format.size() - point) - 1;
}

QString shownNumber(double value, const data::Column& column, const platform::Region& region) {
    const QVariant number = column.kind == data::FieldKind::Whole ? QVariant(static_cast<qint64>(value)) : value;
    return platform::displayText(number, platform::ColumnKind::Number, column.format, region);
}

QString shownDate(std::string_view stored, const data::Column& column, const platform::Region& region) {
    const QVariant text = QString::fromUtf8(stored.data(), static_cast<qsizetype>(stored.size()));
    const QVariant date = data::shownValue(text, platform::ColumnKind::Date);
    return platform::displayText(date, platform::ColumnKind::Date, column.format, region);
}

SoughtWords::SoughtWords(const QString& typed, const platform::Region& region) : region_(region) {
    const QStringList words = folded(typed).simplified().split(u' ', Qt::SkipEmptyParts);
    for (const QString& word : words)
        words_.push_back(soughtWord(word, region));
}

bool SoughtWords::numberHas(const SoughtWord& word, double value, const data::Column& column, int decimals) const {
    if (!word.inNumbers || !mayHaveDigits(value, decimals, word.digits)) return false;
    const QString plain = platform::plainNumber(value);
    return word.isIn(plain.toStdString()) || word.isIn(folded(shownNumber(value, column, region_)).toStdString());
}

bool SoughtWords::dateHas(const SoughtWord& word, std::string_view stored, const data::Column& column) {
    if (!word.inDates) return false;
    // However a date is written, it has no digits beside those of the file, and each once.
    if (!hasDigits(stored, word.digits)) return false;
    return word.isIn(stored) || word.isIn(shownDate(stored, column));
}

const std::string& SoughtWords::shownDate(std::string_view stored, const data::Column& column) {
    auto& dates = dates_[column.format];
    if (dates.size() >= mostDatesKept) dates.clear();
    const auto [date, isNew] = dates.try_emplace(std::string(stored));
    if (isNew) date->second = folded(find::shownDate(stored, column, region_)).toStdString();
    return date->second;
}

}  // namespace find
