#include "screens/catalogue/shown_columns.h"

#include <algorithm>

#include "data/tables.h"
#include "screens/catalogue/screen_definition.h"

namespace screens {

namespace {

bool isShown(const ScreenDefinition& definition, const data::Column& column) {
    if (column.shownIn == data::ShownIn::Nowhere) return false;
    return !column.isStored() || std::ranges::find(definition.leftOut, column.name) == definition.leftOut.end();
}

data::Column inOwnWords(const ScreenDefinition& definition, data::Column column) {
    const auto own = std::ranges::find(definition.overrides, column.name, &Override::column);
    if (own == definition.overrides.end()) return column;
    if (!own->label.isEmpty()) column.label = own->label;
    if (own->maxLength) column.maxLength = *own->maxLength;
    if (!own->hint.isEmpty()) column.hint = own->hint;
    return column;
}

}  // namespace

std::vector<data::Column> shownColumns(const ScreenDefinition& definition) {
    std::vector<data::Column> shown;
    for (const data::Column& column : data::table(QString(definition.table)).columns) {
        if (isShown(definition, column)) shown.push_back(inOwnWords(definition, column));
    }
    return shown;
}

}  // namespace screens
