#pragma once

#include <QLatin1StringView>
#include <span>

namespace screens {

/// What a text box must hold when the focus leaves it, besides nothing at all.
enum class Check { Number, Date };

struct FieldCheck {
    int box;  ///< index in txtFields
    Check check;
};

/// A combo whose text goes into a column by hand on save; its hidden shadow box carries the text to the output.
struct ComboColumn {
    int combo;  ///< index in cbFields; -1 where the screen has one combo that is no array
    QLatin1StringView column;
    int shadow;  ///< index in txtFields
};

/// A date box, bound only for moments and written by hand on save.
struct DateColumn {
    int box;  ///< index in txtFields
    QLatin1StringView column;
};

/// Some neighbours in a control array, by index, both ends included; empty when `last` is before `first`.
struct Range {
    int first = 0;
    int last = -1;
    [[nodiscard]] constexpr bool holds(int index) const { return index >= first && index <= last; }
};

struct Frame {
    QLatin1StringView caption;
    Range boxes;
    Range checks;
};

/// Everything in which one record screen differs from the next as data. Labels, lengths, formats and hints of its
/// boxes stand in the definition of its table.
struct ScreenDefinition {
    QLatin1StringView name;
    QLatin1StringView table;
    QLatin1StringView title;
    QLatin1StringView attachmentPrefix;
    QLatin1StringView addCaption;
    std::span<const ComboColumn> combos;
    std::span<const DateColumn> dates;
    std::span<const FieldCheck> checks;
    std::span<const Frame> frames;
    int firstBox = 1;  ///< index of the table's first box in txtFields; 0 where no owner stands before it
};

}  // namespace screens
