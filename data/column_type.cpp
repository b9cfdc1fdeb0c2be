#include "data/column_type.h"

#include <QDateTime>
#include <cmath>

#include "data/file_text.h"
#include "data/value_text.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

using platform::ColumnKind;

namespace {

[[noreturn]] void doesNotFit() {
    throw platform::RuntimeError(platform::Error::DoesNotFit);
}

int lengthIn(const QString& declaration) {
    const auto open = declaration.indexOf(u'(');
    const auto close = declaration.indexOf(u')', open);
    return open < 0 || close < 0 ? 0 : declaration.mid(open + 1, close - open - 1).trimmed().toInt();
}

QVariant shownDate(const QVariant& stored) {
    const QString text = stored.toString();
    const QDate day = QDate::fromString(text.left(10), Qt::ISODate);
    const QTime time = text.size() > 11 ? QTime::fromString(text.mid(11), Qt::ISODate) : QTime(0, 0);
    return day.isValid() && time.isValid() ? QVariant(QDateTime(day, time, Qt::UTC)) : QVariant();
}

QVariant storedText(const QVariant& value, int maxLength) {
    QString text = plainText(value);
    // Half of a surrogate pair has no place in the file's encoding and would come back as another sign.
    if (!text.isValidUtf16()) text = textFromFile(text.toUtf8());
    if (maxLength > 0 && text.size() > maxLength) doesNotFit();
    return text;
}

double numberOf(const QVariant& value) {
    if (value.typeId() == QMetaType::QString) return numberFromText(value.toString());
    if (value.typeId() == QMetaType::Bool) return value.toBool() ? -1 : 0;
    bool ok = false;
    const double number = value.toDouble(&ok);
    return ok ? number : throw platform::RuntimeError(platform::Error::DoesNotFit);
}

/// Halves go to the even neighbour, as everywhere a fraction meets a whole number.
QVariant storedNumber(const QVariant& value, int wholeBits) {
    const double number = numberOf(value);
    if (!std::isfinite(number)) doesNotFit();
    if (wholeBits == 0) return number;
    const double whole = std::nearbyint(number);
    const double limit = std::ldexp(1.0, wholeBits - 1);
    if (whole < -limit || whole >= limit) doesNotFit();
    return static_cast<qlonglong>(whole);
}

QVariant storedDate(const QVariant& value) {
    QDateTime moment;
    if (value.typeId() == QMetaType::QString)
        moment = dateFromText(value.toString());
    else if (value.typeId() == QMetaType::QDate)
        moment = QDateTime(value.toDate(), QTime(0, 0), Qt::UTC);
    else if (value.typeId() == QMetaType::QDateTime)
        moment = value.toDateTime();
    if (!moment.isValid()) doesNotFit();
    const bool midnight = moment.time() == QTime(0, 0);
    return moment.toString(midnight ? u"yyyy-MM-dd"_s : u"yyyy-MM-dd HH:mm:ss"_s);
}

QVariant storedTruth(const QVariant& value) {
    const QString text = value.typeId() == QMetaType::QString ? value.toString().trimmed().toLower() : QString();
    if (text == u"true"_s || text == u"yes"_s) return qlonglong{-1};
    if (text == u"false"_s || text == u"no"_s) return qlonglong{0};
    return qlonglong{numberOf(value) == 0 ? 0 : -1};
}

}  // namespace

ColumnType declaredType(const QString& declaration) {
    const QString type = declaration.section(u'(', 0, 0).trimmed().toUpper();
    if (type == u"SMALLINT"_s) return {ColumnKind::Number, 0, 16};
    if (type == u"INTEGER"_s || type == u"INT"_s) return {ColumnKind::Number, 0, 32};
    if (type == u"DOUBLE"_s || type == u"REAL"_s || type == u"FLOAT"_s || type == u"NUMERIC"_s || type == u"CURRENCY"_s)
        return {ColumnKind::Number, 0, 0};
    if (type == u"LONGTEXT"_s || type == u"MEMO"_s) return {ColumnKind::Memo, 0, 0};
    if (type == u"DATE"_s || type == u"DATETIME"_s) return {ColumnKind::Date, 0, 0};
    if (type == u"BOOLEAN"_s) return {ColumnKind::YesNo, 0, 0};
    return {ColumnKind::Text, lengthIn(declaration), 0};
}

QVariant shownValue(const QVariant& stored, ColumnKind kind) {
    if (kind == ColumnKind::YesNo) return stored.toDouble() != 0;
    if (!stored.isValid()) return {};
    if (kind == ColumnKind::Date) return shownDate(stored);
    const bool isText = kind == ColumnKind::Text || kind == ColumnKind::Memo;
    return isText && stored.typeId() != QMetaType::QString ? QVariant(plainText(stored)) : stored;
}

QVariant storedForm(const QVariant& value, const ColumnType& type) {
    const bool isEmptyText = value.typeId() == QMetaType::QString && value.toString().isEmpty();
    const bool isText = type.kind == ColumnKind::Text || type.kind == ColumnKind::Memo;
    if (type.kind == ColumnKind::Counter) doesNotFit();
    if (value.isNull() && !isEmptyText) return type.kind == ColumnKind::YesNo ? QVariant(qlonglong{0}) : QVariant();
    if (isText) return storedText(value, type.maxLength);
    if (isEmptyText) return type.kind == ColumnKind::YesNo ? QVariant(qlonglong{0}) : QVariant();
    if (type.kind == ColumnKind::Date) return storedDate(value);
    return type.kind == ColumnKind::YesNo ? storedTruth(value) : storedNumber(value, type.wholeBits);
}

}  // namespace data
