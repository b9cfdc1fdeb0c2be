#pragma once

#include <QLatin1StringView>
#include <optional>
#include <span>

namespace screens {

/// A group of controls. The frames of an entry stand in the order in which they are shown, so that reading down is
/// reading by index. A frame begins with the fields it names, goes on to those that the next one names, and holds none
/// of a kind that it doesn't name; the first holds the owner too. A field goes by the name of its column, or by its
/// label where nothing stores it.
struct Frame {
    QLatin1StringView caption;
    QLatin1StringView firstBox{};
    QLatin1StringView firstCheck{};
    std::optional<int> index{};  ///< in frFrame; none: as it is shown
};

/// Why a save is refused while the owner, or the name that a row goes by, is empty. The message is the opening and the
/// screen's own ending.
struct Refusal {
    QLatin1StringView title;
    QLatin1StringView opening;
};

inline constexpr Refusal noFamilyMember{QLatin1StringView("No Family Member"),
                                        QLatin1StringView("No family member has been entered.  No ")};
inline constexpr Refusal noLegalOwner{QLatin1StringView("No Legal Owner"),
                                      QLatin1StringView("No legal owner has been entered.  No ")};
inline constexpr Refusal noRenter{QLatin1StringView("No Renter"),
                                  QLatin1StringView("No renter has been entered.  No ")};

/// What can hang on a row of a site.
enum class ChildKind { Inventory, Improvements, Outbuildings };

/// A child screen that a site's screen opens by a menu entry and a toolbar key.
struct ChildOffer {
    ChildKind kind;
    QLatin1StringView title;    ///< ahead of the site's description in the child's caption
    QLatin1StringView tooltip;  ///< of the toolbar key
};

/// What a screen says of a column in other words than the table's definition, where several screens share the table.
struct Override {
    QLatin1StringView column;
    QLatin1StringView label{};       ///< empty: the definition's
    std::optional<int> maxLength{};  ///< none: the definition's
    QLatin1StringView hint{};        ///< empty: the definition's
};

/// The part of a shared table that is a screen's own.
struct SharedRows {
    int type;                ///< written into the column Type on every save
    QLatin1StringView word;  ///< ahead of the title
    bool filters;            ///< shows the rows of its type alone; otherwise those of every type
};

/// Everything in which one record screen differs from the next as data, and its table doesn't say. What its boxes are,
/// with labels, lengths, formats and hints, stands in the definition of the table; screenFields() joins the two.
struct ScreenDefinition {
    QLatin1StringView name;
    QLatin1StringView table;
    QLatin1StringView title{};             ///< ahead of the selected name; whole where there is none to follow
    QLatin1StringView attachmentPrefix{};  ///< empty: no attachments
    QLatin1StringView addCaption;

    QLatin1StringView ownerLabel{};  ///< caption of lblLabels(0); empty where no owner stands before the boxes
    Refusal refusal = noFamilyMember;
    QLatin1StringView saveEnding{};
    QLatin1StringView deleteNoun{};  ///< after "Are you sure you want to delete this "
    QLatin1StringView saveAllHint = QLatin1StringView("Save all records to file");
    bool reportsLoadFailure = false;

    std::optional<SharedRows> shared{};
    std::span<const Override> overrides{};
    std::span<const QLatin1StringView> leftOut{};  ///< columns of the table that the screen doesn't show

    QLatin1StringView query{};          ///< of a screen without an owner; of a child screen up to its condition
    QLatin1StringView queryOrder{};     ///< behind a child screen's condition
    QLatin1StringView selectorQuery{};  ///< the names in cbSelect; empty where there is none

    std::span<const QLatin1StringView> statusItems{};  ///< of the combo over a status column
    bool soleCombo = false;                            ///< its one combo is cbFields, without an index
    QLatin1StringView unchecked{};                     ///< a number or date whose box takes any text
    std::span<const Frame> frames;
    bool inOneColumn = false;  ///< its boxes stand below each other at any width

    int parentType = 0;  ///< TypeID in the child tables of the rows that hang on this screen's
    std::span<const ChildOffer> children{};

    /// Index of the table's first box in txtFields, and of its first combo in cbFields: the owner's stand before them.
    [[nodiscard]] constexpr int firstField() const { return ownerLabel.isEmpty() ? 0 : 1; }
};

}  // namespace screens
