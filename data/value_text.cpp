#include "data/value_text.h"

#include "platform/base/conversions.h"
#include "platform/base/date_text.h"
#include "platform/base/runtime_error.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

/// A text that is none of its column's kind fails as a value that doesn't fit, not as a mismatch of types.
template <typename Conversion>
auto fitting(Conversion conversion) {
    try {
        return conversion();
    } catch (const platform::RuntimeError&) {
        throw platform::RuntimeError(platform::Error::DoesNotFit);
    }
}

}  // namespace

// A file means the same wherever it is opened: no text in it is of a region.

QString plainText(const QVariant& value) {
    const auto& region = platform::Region::unitedStates();
    if (value.typeId() == QMetaType::Double) return platform::plainNumber(value.toDouble());
    if (value.typeId() == QMetaType::Bool) return value.toBool() ? u"True"_s : u"False"_s;
    if (value.typeId() == QMetaType::QDate)
        return platform::dateText(QDateTime(value.toDate(), QTime(0, 0), Qt::UTC), region);
    return value.typeId() == QMetaType::QDateTime ? platform::dateText(value.toDateTime(), region) : value.toString();
}

double numberFromText(const QString& text) {
    return fitting([&text] { return platform::toDouble(text, platform::Region::unitedStates()); });
}

QDateTime dateFromText(const QString& text) {
    return fitting([&text] { return platform::toDate(text, platform::Region::unitedStates()); });
}

}  // namespace data
