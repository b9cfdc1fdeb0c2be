#include "book/record_document.h"

#include <algorithm>

#include "platform/base/display_format.h"
#include "platform/base/record_source.h"
#include "platform/forms/box_text.h"
#include "screens/catalogue/screen_definition.h"
#include "screens/catalogue/screen_fields.h"

using namespace Qt::StringLiterals;

namespace book {

namespace {

QString shownText(const data::Column& column, const platform::RecordSource& row) {
    // A combo knows no format.
    const QString format = column.shownIn == data::ShownIn::Box ? QString(column.format) : QString();
    const QString text = platform::displayText(row.value(column.name), row.columnKind(column.name), format);
    const QString cut = platform::cutToBox(text, column.maxLength);
    return column.kind == data::FieldKind::LongText ? platform::asInMemo(cut) : cut;
}

/// Grey, for a row that doesn't say, counts as set; what nothing stores is clear.
bool isSet(const data::Column& column, const platform::RecordSource& row) {
    if (!column.isStored()) return false;
    const QVariant value = row.value(column.name);
    return value.isNull() || value.toBool();
}

}  // namespace

output::PrintableScreen recordDocument(const screens::ScreenDefinition& definition, const platform::RecordSource& row,
                                       const Surroundings& surroundings) {
    output::PrintableScreen screen{.caption = surroundings.caption};
    if (definition.firstField() > 0) screen.fields.push_back({0, definition.ownerLabel, surroundings.owner});
    int index = definition.firstField();
    for (const data::Column& column : screens::screenFields(definition)) {
        if (column.kind == data::FieldKind::YesNo) {
            screen.checks.push_back({column.label, isSet(column, row)});
        } else {
            const QString text = column.isStored() ? shownText(column, row) : surroundings.location;
            screen.fields.push_back({index++, column.label, text});
        }
    }
    return screen;
}

QString boxText(const screens::ScreenDefinition& definition, const platform::RecordSource& row,
                QLatin1StringView column) {
    const std::vector<data::Column> fields = screens::screenFields(definition);
    const auto found = std::ranges::find(fields, column, &data::Column::name);
    return found == fields.end() ? QString() : shownText(*found, row);
}

}  // namespace book
