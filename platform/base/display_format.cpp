#include "platform/base/display_format.h"

#include <cmath>

#include "platform/base/conversions.h"
#include "platform/base/date_text.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

bool isDatePattern(const QString& format) {
    return format.contains(u'd', Qt::CaseInsensitive) || format.contains(u'y', Qt::CaseInsensitive);
}

bool isNumberPattern(const QString& format) {
    return format.contains(u'0') || format.contains(u'#');
}

bool isDateValue(const QVariant& value) {
    return value.typeId() == QMetaType::QDateTime;
}

bool isNumberValue(const QVariant& value) {
    const int type = value.typeId();
    return type == QMetaType::Double || type == QMetaType::LongLong || type == QMetaType::Int;
}

/// A value without a format, by what it is.
QString plainText(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::QDateTime:
            return dateText(value.toDateTime());
        case QMetaType::Double:
            return numberText(value.toDouble());
        case QMetaType::Bool:
            return value.toBool() ? u"True"_s : u"False"_s;
        default:
            return value.toString();
    }
}

/// Through the pattern, but with the year in full where its two digits would read back as another one.
QString readableDate(const QDateTime& date, const QString& pattern) {
    const int year = date.date().year();
    const bool inTwoDigitWindow = year >= 1930 && year <= 2029;
    if (inTwoDigitWindow || pattern.contains(u"yyy", Qt::CaseInsensitive)) return formatDate(date, pattern);
    QString inFull = pattern;
    return formatDate(date, inFull.replace(u"yy"_s, u"yyyy"_s, Qt::CaseInsensitive));
}

/// Whole numbers stay exact; 2^53 is where a double begins to skip some.
QVariant numberValue(double number) {
    constexpr double firstInexact = 9007199254740992.0;
    const bool whole = number == std::trunc(number) && std::abs(number) < firstInexact;
    return whole ? QVariant(static_cast<qint64>(number)) : QVariant(number);
}

QVariant yesNoValue(const QString& text) {
    if (text.compare(u"True", Qt::CaseInsensitive) == 0) return true;
    if (text.compare(u"False", Qt::CaseInsensitive) == 0) return false;
    return toDouble(text) != 0;
}

QVariant parsed(const QString& text, ColumnKind kind) {
    switch (kind) {
        case ColumnKind::Text:
        case ColumnKind::Memo:
            return text;
        case ColumnKind::Date:
            return toDate(text);
        case ColumnKind::YesNo:
            return yesNoValue(text);
        case ColumnKind::Number:
        case ColumnKind::Counter:
            break;
    }
    return numberValue(toDouble(text));
}

}  // namespace

QString displayText(const QVariant& value, ColumnKind kind, const QString& format) {
    const bool numberColumn = kind == ColumnKind::Number || kind == ColumnKind::Counter;
    if (numberColumn && isNumberValue(value) && isNumberPattern(format)) return formatNumber(value.toDouble(), format);
    if (kind == ColumnKind::Date && isDateValue(value) && isDatePattern(format)) {
        return readableDate(value.toDateTime(), format);
    }
    return plainText(value);
}

QVariant storedValue(const QString& text, ColumnKind kind) {
    const bool textColumn = kind == ColumnKind::Text || kind == ColumnKind::Memo;
    if (text.isEmpty()) return textColumn ? QVariant(u""_s) : QVariant();
    try {
        return parsed(text, kind);
    } catch (const RuntimeError&) {
        throw RuntimeError(-2147217887, u"Multiple-step operation generated errors. Check each status value."_s);
    }
}

}  // namespace platform
