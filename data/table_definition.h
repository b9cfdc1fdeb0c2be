#pragma once

#include <QLatin1StringView>
#include <span>

namespace data {

/// What a column holds. Whole is a number to count or to refer with, Number one to reckon with. City, Zip and Phone are
/// texts of a usual look, which a window gives the room that it takes.
enum class FieldKind { Text, City, Zip, Phone, LongText, Number, Whole, Date, YesNo };

/// Where a window shows a column: in a box of its kind, in a combo of the state names or of the marital status, or in
/// none.
enum class ShownIn { Box, StateCombo, StatusCombo, Nowhere };

/// What a column holds in a new row that doesn't set it. A yes/no column is always no.
enum class Initially { Null, Zero };

/// What a date tells of the days to come.
struct Coming {
    enum class When { Never, Once, EachYear, NoMore };

    When when = When::Never;
    QLatin1StringView what{};  ///< empty: the label
};

/// Something expires, falls due or begins on that day.
inline constexpr Coming ahead{Coming::When::Once};
/// The day returns every year, and is called so.
constexpr Coming eachYear(QLatin1StringView what) {
    return {Coming::When::EachYear, what};
}
/// Whatever day of the row returned every year does so no more: a marriage that has ended has no wedding day.
inline constexpr Coming returnsNoMore{Coming::When::NoMore};

/// One field of a window and the column behind it. A window numbers its boxes in the order of the definitions, text
/// boxes first, then check boxes.
struct Column {
    QLatin1StringView name{};  ///< empty: shown only, nothing stores it
    QLatin1StringView label{};
    FieldKind kind = FieldKind::Text;
    int maxLength = 0;  ///< characters, 0 for no limit
    /// How the value is shown, never what is stored. Some text columns carry a number format: it doesn't touch text.
    QLatin1StringView format{};
    QLatin1StringView hint{};
    ShownIn shownIn = ShownIn::Box;
    Initially initially = Initially::Null;
    Coming coming{};

    [[nodiscard]] constexpr bool isStored() const { return !name.isEmpty(); }
    /// What the column goes by where a window names it.
    [[nodiscard]] constexpr QLatin1StringView key() const { return isStored() ? name : label; }
    /// A rate is in percent.
    [[nodiscard]] bool isRate() const { return format == QLatin1StringView("0.000"); }
};

/// Which key columns a table has before its others: none, the counter ID, ID with PersonID, ID with PersonID and
/// MedicalID (the doctor), or ID with TypeID and ParentID (the kind of site, and the row of that kind). A key that the
/// columns list themselves stands where they list it.
enum class Keys { None, Counter, Owner, OwnerAndDoctor, Parent };

struct Table {
    QLatin1StringView name{};
    Keys keys = Keys::Counter;
    std::span<const Column> columns{};
};

}  // namespace data
