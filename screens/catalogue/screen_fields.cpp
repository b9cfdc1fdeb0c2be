#include "screens/catalogue/screen_fields.h"

#include <algorithm>
#include <iterator>

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

/// What each frame holds of the fields of one kind, which are numbered from `index` on. What has a lower number stands
/// in the first frame.
std::vector<Range> spread(std::span<const Frame> frames, std::span<const data::Column> fields,
                          QLatin1StringView Frame::*firstOfKind, int index) {
    std::vector<Range> ranges(frames.size());
    Range* filling = &ranges.front();
    filling->last = index - 1;
    for (const data::Column& field : fields) {
        const auto begun = std::ranges::find(frames, field.key(), firstOfKind);
        if (begun != frames.end()) filling = &ranges.at(static_cast<std::size_t>(std::distance(frames.begin(), begun)));
        if (filling->count() == 0) filling->first = index;
        filling->last = index++;
    }
    return ranges;
}

}  // namespace

std::vector<data::Column> screenFields(const ScreenDefinition& definition) {
    std::vector<data::Column> shown;
    for (const data::Column& column : data::table(QString(definition.table)).columns) {
        if (isShown(definition, column)) shown.push_back(inOwnWords(definition, column));
    }
    std::stable_partition(shown.begin(), shown.end(),
                          [](const auto& column) { return column.kind != data::FieldKind::YesNo; });
    return shown;
}

std::vector<FilledFrame> filledFrames(const ScreenDefinition& definition) {
    const std::vector<data::Column> fields = screenFields(definition);
    const auto firstCheck = std::ranges::find(fields, data::FieldKind::YesNo, &data::Column::kind);
    const std::vector<Range> boxes =
        spread(definition.frames, {fields.begin(), firstCheck}, &Frame::firstBox, definition.firstField());
    const std::vector<Range> checks = spread(definition.frames, {firstCheck, fields.end()}, &Frame::firstCheck, 0);
    std::vector<FilledFrame> frames;
    for (std::size_t i = 0; i < definition.frames.size(); ++i) {
        const Frame& frame = definition.frames[i];
        frames.push_back({frame.index.value_or(static_cast<int>(i)), frame.caption, boxes[i], checks[i]});
    }
    return frames;
}

}  // namespace screens
