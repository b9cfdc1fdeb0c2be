#include "data/value_text.h"

#include "data/provider_error.h"

using namespace Qt::StringLiterals;

namespace data {

QString plainText(const QVariant& value) {
    if (value.typeId() == QMetaType::Double) return QString::number(value.toDouble(), 'g', 15);
    if (value.typeId() == QMetaType::Bool) return value.toBool() ? u"True"_s : u"False"_s;
    if (value.typeId() == QMetaType::QDateTime) return value.toDateTime().toString(u"M/d/yyyy"_s);
    return value.toString();
}

double numberFromText(const QString& text) {
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok ? number : throw providerError(ProviderError::DoesNotFit);
}

QDateTime dateFromText(const QString& text) {
    QDate day = QDate::fromString(text, Qt::ISODate);
    if (!day.isValid()) day = QDate::fromString(text, u"M/d/yyyy"_s);
    return day.isValid() ? QDateTime(day, QTime(0, 0), Qt::UTC) : throw providerError(ProviderError::DoesNotFit);
}

}  // namespace data
