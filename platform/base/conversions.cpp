#include "platform/base/conversions.h"

#include <cmath>
#include <limits>
#include <optional>

#include "platform/base/region.h"
#include "platform/base/runtime_error.h"
#include "platform/base/text_scanner.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

/// Digits with at most one point among them, written as a number of the C locale; nothing without a digit.
std::optional<QString> takeDecimal(TextScanner& scanner, QChar decimalPoint, QStringView thousands) {
    QString whole = scanner.takeWhile(isDigit).toString();
    if (!whole.isEmpty()) {
        whole += scanner.takeWhile([thousands](QChar c) { return isDigit(c) || thousands.contains(c); });
        whole.removeIf([](QChar c) { return !isDigit(c); });
    }
    const bool point = scanner.accept(QStringView(&decimalPoint, 1));
    const QStringView fraction = point ? scanner.takeWhile(isDigit) : QStringView();
    if (whole.isEmpty() && fraction.isEmpty()) return std::nullopt;
    return whole + u'.' + fraction.toString();
}

/// "E5", "d-2" as "e5", "e-2"; "" with the scanner where it was when no digit follows.
QString takeExponent(TextScanner& scanner) {
    const qsizetype start = scanner.position();
    if (!scanner.accept(u"eEdD")) return {};
    const QChar sign = scanner.peek();
    const bool isSigned = scanner.accept(u"+-");
    const QStringView digits = scanner.takeWhile(isDigit);
    if (digits.isEmpty()) {
        scanner.goTo(start);
        return {};
    }
    return u"e"_s + (isSigned ? QString(sign) : QString()) + digits.toString();
}

/// The digits behind "&H" or "&O" as a number; nothing without any, or beyond 64 bits.
std::optional<quint64> takeRadixNumber(TextScanner& scanner) {
    if (!scanner.accept(u"&")) return std::nullopt;
    const bool hexadecimal = scanner.accept(u"hH");
    if (!hexadecimal && !scanner.accept(u"oO")) return std::nullopt;
    const QStringView digits = scanner.takeWhile([hexadecimal](QChar c) {
        const QChar letter = c.toLower();
        return hexadecimal ? isDigit(c) || (letter >= u'a' && letter <= u'f') : c >= u'0' && c <= u'7';
    });
    bool fits = false;
    const quint64 value = digits.toULongLong(&fits, hexadecimal ? 16 : 8);
    return fits ? std::optional(value) : std::nullopt;
}

/// Reads one text as a number of a region.
class NumberReader {
public:
    /// `text`: in the usual digits.
    NumberReader(const QString& text, const Region& region) : scanner_(text), region_(region) {}

    std::optional<double> read() {
        scanner_.takeWhile(isBlank);
        std::optional<double> value;
        if (scanner_.peek() == u'&') {
            if (const auto bits = takeRadixNumber(scanner_)) value = static_cast<double>(*bits);
        } else {
            value = scanner_.accept(u"(") ? takeParenthesized() : takeSigned();
        }
        scanner_.takeWhile(isBlank);
        if (!scanner_.atEnd() || !value || !std::isfinite(*value)) return std::nullopt;
        return value;
    }

private:
    enum class Sign { None, Plus, Minus };

    Sign takeSign() {
        if (scanner_.accept(u"+")) return Sign::Plus;
        return scanner_.accept(region_.minusTyped) ? Sign::Minus : Sign::None;
    }
    bool takeCurrency() { return scanner_.acceptWord(region_.currency); }
    std::optional<QString> takeDigits() { return takeDecimal(scanner_, region_.decimalPoint, region_.thousandsTyped); }

    /// "(5)", the accountant's minus five; no sign and no exponent inside.
    std::optional<double> takeParenthesized() {
        scanner_.takeWhile(isBlank);
        takeCurrency();
        const auto digits = takeDigits();
        scanner_.takeWhile(isBlank);
        if (!digits || !scanner_.accept(u")")) return std::nullopt;
        return -digits->toDouble();
    }

    std::optional<double> takeSigned() {
        bool currency = takeCurrency();
        Sign sign = takeSign();
        const bool signedInFront = sign != Sign::None;
        if (signedInFront && !currency) {
            scanner_.takeWhile(isBlank);
            currency = takeCurrency();
        }
        const auto digits = takeDigits();
        if (!digits) return std::nullopt;
        const double value = (*digits + takeExponent(scanner_)).toDouble();
        scanner_.takeWhile(isBlank);
        if (!signedInFront) sign = takeSign();
        const bool signedBehind = !signedInFront && sign != Sign::None;
        if (!signedBehind && !currency) takeCurrency();
        return sign == Sign::Minus ? -value : value;
    }

    TextScanner scanner_;
    const Region& region_;
};

std::optional<double> parseNumber(const QString& text, const Region& region) {
    const QString usual = region.withUsualDigits(text);
    return NumberReader(usual, region).read();
}

template <typename Integer>
Integer roundedTo(double value) {
    const double rounded = std::nearbyint(value);
    const bool fits = rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max();
    if (!fits) throw RuntimeError(Error::Overflow);
    return static_cast<Integer>(rounded);
}

/// Radix digits that fill 16 or 32 bits are taken for signed numbers of that width.
double asSignedWidth(quint64 bits) {
    if (bits <= std::numeric_limits<quint16>::max()) return static_cast<qint16>(bits);
    if (bits <= std::numeric_limits<quint32>::max()) return static_cast<qint32>(bits);
    return static_cast<double>(bits);
}

/// The decimal digits of a number, as many as the 15 that are shown of it, and where the point lies among them.
struct Decimal {
    QString digits;
    qsizetype point;
};

Decimal toDecimal(double value) {
    const QString text = QString::number(std::abs(value), 'e', 14);
    const qsizetype mark = text.indexOf(u'e');
    return {text.first(mark).remove(u'.'), text.sliced(mark + 1).toInt() + 1};
}

/// Cuts to so many decimals, halves away from zero, with at least one digit before the point.
Decimal rounded(Decimal number, qsizetype decimals) {
    auto& [digits, point] = number;
    // One zero more in front, so that a carry out of the first digit has a place to go.
    const qsizetype missing = 1 + std::max<qsizetype>(0, 1 - point);
    digits.prepend(QString(missing, u'0'));
    point += missing;
    const qsizetype kept = point + decimals;
    digits = digits.leftJustified(kept + 1, u'0');
    const bool up = digits[kept] >= u'5';
    digits.truncate(kept);
    for (qsizetype i = kept - 1; up && i >= 0; --i) {
        const bool carries = digits[i] == u'9';
        digits[i] = carries ? QChar(u'0') : QChar(digits[i].unicode() + 1);
        if (!carries) break;
    }
    return number;
}

QString grouped(QString whole, const QString& separator) {
    for (qsizetype at = whole.size() - 3; at > 0; at -= 3)
        whole.insert(at, separator);
    return whole;
}

}  // namespace

bool isNumeric(const QString& text, const Region& region) {
    return parseNumber(text, region).has_value();
}

double toDouble(const QString& text, const Region& region) {
    const auto value = parseNumber(text, region);
    if (!value) throw RuntimeError(Error::TypeMismatch);
    return *value;
}

int toLong(const QString& text, const Region& region) {
    return toLong(toDouble(text, region));
}

int toLong(double value) {
    return roundedTo<int>(value);
}

qint16 toInteger(const QString& text, const Region& region) {
    return toInteger(toDouble(text, region));
}

qint16 toInteger(double value) {
    return roundedTo<qint16>(value);
}

double val(const QString& text) {
    QString dense = text;
    dense.removeIf([](QChar c) { return isBlank(c) || c == u'\n'; });
    TextScanner scanner(dense);
    if (scanner.peek() == u'&') return asSignedWidth(takeRadixNumber(scanner).value_or(0));

    const bool negative = scanner.peek() == u'-';
    scanner.accept(u"+-");
    const auto digits = takeDecimal(scanner, u'.', {});
    if (!digits) return 0;
    const double value = (*digits + takeExponent(scanner)).toDouble();
    if (!std::isfinite(value)) throw RuntimeError(Error::Overflow);
    const bool suffixOfWholeNumbers = scanner.accept(u"%&");
    if (suffixOfWholeNumbers && value != std::trunc(value)) throw RuntimeError(Error::TypeMismatch);
    return negative ? -value : value;
}

QString statementNumber(const QString& text, const Region& region) {
    QString written = region.withUsualDigits(text);
    for (QChar& c : written) {
        if (c == region.decimalPoint) {
            c = u'.';
        } else if (region.thousands.contains(c)) {
            c = u',';
        } else if (region.minusTyped.contains(c)) {
            c = u'-';
        }
    }
    return written;
}

QString plainNumber(double value) {
    if (value == 0) return u"0"_s;  // also for the negative zero
    return QString::number(value, 'g', 15).toUpper();
}

QString numberText(double value, const Region& region) {
    return region.withOwnDigits(plainNumber(value).replace(u'.', region.decimalPoint));
}

QString str(double value) {
    QString text = plainNumber(value);
    if (text.startsWith(u"0.")) text.remove(0, 1);
    if (text.startsWith(u"-0.")) text.remove(1, 1);
    return text.startsWith(u'-') ? text : u' ' + text;
}

double roundHalfEven(double value, int decimals) {
    if (decimals < 0 || decimals > 22) throw RuntimeError(Error::InvalidCall);
    const double scale = std::pow(10.0, decimals);
    const double scaled = value * scale;
    return std::isfinite(scaled) ? std::nearbyint(scaled) / scale : value;
}

QString formatNumber(double value, const QString& pattern, const Region& region) {
    const qsizetype first = pattern.indexOf(u'0');
    const qsizetype point = pattern.indexOf(u'.');
    const qsizetype wholeEnd = point < 0 ? pattern.size() : point;
    const qsizetype decimals = point < 0 ? 0 : pattern.sliced(point).count(u'0');
    const bool hasWholeDigit = first >= 0 && first < wholeEnd;
    const bool percent = pattern.endsWith(u'%');

    Decimal number = toDecimal(value);
    if (percent && value != 0) number.point += 2;
    number = rounded(number, decimals);
    QString whole = number.digits.first(number.point);
    while (whole.startsWith(u'0') && whole.size() > (hasWholeDigit ? 1 : 0))
        whole.remove(0, 1);
    if (pattern.first(wholeEnd).contains(u',')) whole = grouped(whole, region.thousands);
    const QString fraction = decimals > 0 ? region.decimalPoint + number.digits.sliced(number.point) : QString();
    // A negative number keeps its sign when it is rounded to nothing: "-0.00" tells a small debt from none.
    const QString sign = value < 0 ? u"-"_s : QString();
    return sign + region.withOwnDigits(whole + fraction) + (percent ? u"%"_s : QString());
}

}  // namespace platform
