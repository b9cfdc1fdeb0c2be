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

/// A value without a format, by what it is. A whole number counts or refers, and may come to stand in a statement: it
/// looks the same everywhere.
QString unformatted(const QVariant& value, const Region& region) {
    switch (value.typeId()) {
        case QMetaType::QDateTime:
            return dateText(value.toDateTime(), region);
        case QMetaType::Double:
            return numberText(value.toDouble(), region);
        case QMetaType::Bool:
            return value.toBool() ? u"True"_s : u"False"_s;
        default:
            return value.toString();
    }
}

/// Through the pattern, but with the year in full where its two digits would read back as another one.
QString readableDate(const QDateTime& date, const QString& pattern, const Region& region) {
    const int inWindow = date.date().year() - region.firstShortYear;
    const bool readable = (inWindow >= 0 && inWindow < 100) || pattern.contains(u"yyy", Qt::CaseInsensitive);
    if (readable) return formatDate(date, pattern, region);
    QString inFull = pattern;
    return formatDate(date, inFull.replace(u"yy"_s, u"yyyy"_s, Qt::CaseInsensitive), region);
}

/// Whole numbers stay exact; 2^53 is where a double begins to skip some.
QVariant numberValue(double number) {
    constexpr double firstInexact = 9007199254740992.0;
    const bool whole = number == std::trunc(number) && std::abs(number) < firstInexact;
    return whole ? QVariant(static_cast<qint64>(number)) : QVariant(number);
}

QVariant yesNoValue(const QString& text, const Region& region) {
    if (text.compare(u"True", Qt::CaseInsensitive) == 0) return true;
    if (text.compare(u"False", Qt::CaseInsensitive) == 0) return false;
    return toDouble(text, region) != 0;
}

QVariant parsed(const QString& text, ColumnKind kind, const Region& region) {
    switch (kind) {
        case ColumnKind::Text:
        case ColumnKind::Memo:
            return text;
        case ColumnKind::Date:
            return toDate(text, region);
        case ColumnKind::YesNo:
            return yesNoValue(text, region);
        case ColumnKind::Number:
        case ColumnKind::Counter:
            break;
    }
    return numberValue(toDouble(text, region));
}

}  // namespace

QString displayText(const QVariant& value, ColumnKind kind, const QString& format, const Region& region) {
    const bool numberColumn = kind == ColumnKind::Number || kind == ColumnKind::Counter;
    if (numberColumn && isNumberValue(value) && isNumberPattern(format))
        return formatNumber(value.toDouble(), format, region);
    if (kind == ColumnKind::Date && isDateValue(value) && isDatePattern(format)) {
        return readableDate(value.toDateTime(), format, region);
    }
    return unformatted(value, region);
}

QVariant storedValue(const QString& text, ColumnKind kind, const Region& region) {
    const bool textColumn = kind == ColumnKind::Text || kind == ColumnKind::Memo;
    if (text.isEmpty()) return textColumn ? QVariant(u""_s) : QVariant();
    try {
        return parsed(text, kind, region);
    } catch (const RuntimeError&) {
        throw RuntimeError(Error::DoesNotFit);
    }
}

}  // namespace platform
