#include "screens/box_room.h"

#include <QWidget>
#include <algorithm>

namespace screens {

namespace {

/// Up to this many characters a box is given room for all of them.
constexpr int shortText = 15;

constexpr BoxRoom wide(int characters) {
    return {characters, characters};
}

BoxRoom charactersOf(const data::Column& column) {
    using enum data::FieldKind;
    if (column.shownIn == data::ShownIn::StateCombo) return {9, 22};
    if (column.shownIn == data::ShownIn::StatusCombo) return wide(13);
    switch (column.kind) {
        case Date:
            return wide(11);
        case Number:
            return wide(column.format.contains(QLatin1Char(',')) ? 14 : 10);
        case Whole:
            return wide(8);
        case Phone:
            return {14, 22};
        case City:
            return {10, 34};
        default:
            break;
    }
    const bool isShort = column.maxLength > 0 && column.maxLength <= shortText;
    return isShort ? wide(std::max(column.maxLength, 2)) : BoxRoom{14, 50};
}

}  // namespace

BoxRoom boxRoom(const FieldBoxes::Text& text, platform::Control& box) {
    // The owner's name has no column.
    const BoxRoom characters = text.column ? charactersOf(*text.column) : BoxRoom{8, 64};
    const int digit = box.widget().fontMetrics().horizontalAdvance(u'0');
    return {box.widthFor(characters.least * digit), box.widthFor(characters.most * digit)};
}

}  // namespace screens
