#pragma once

#include <QLatin1StringView>
#include <optional>
#include <span>

namespace screens {

/// What a text box must hold when the focus leaves it, besides nothing at all.
enum class Check { Number, Date };

struct FieldCheck {
    int box;  ///< index in txtFields
    Check check;
};

/// A combo whose text goes into a column by hand on save; its hidden shadow box carries the text to the output. The
/// owner's combo isn't one: it has no column.
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
    [[nodiscard]] constexpr int count() const { return last < first ? 0 : last - first + 1; }
};

/// A group of controls. The frames of an entry stand in the order in which they are shown, so that reading down is
/// reading by index; their own index in frFrame can be another one.
struct Frame {
    int index;  ///< in frFrame
    QLatin1StringView caption;
    Range boxes;   ///< in txtFields; 0 is the owner
    Range checks;  ///< in chkFields
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

/// Everything in which one record screen differs from the next as data. Labels, lengths, formats and hints of its
/// boxes stand in the definition of its table; shownColumns() joins the two.
struct ScreenDefinition {
    QLatin1StringView name;
    QLatin1StringView table;
    QLatin1StringView recordset{};
    QLatin1StringView caption{};           ///< before the load gives the title; empty: the table's
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

    std::span<const ComboColumn> combos{};
    std::span<const QLatin1StringView> statusItems{};  ///< of the combo over a status column
    std::span<const DateColumn> dates{};
    std::span<const FieldCheck> checks{};
    std::optional<int> rateBox{};  ///< the box with a percent sign behind it
    std::span<const Frame> frames;

    int parentType = 0;  ///< TypeID in the child tables of the rows that hang on this screen's
    std::span<const ChildOffer> children{};

    int firstBox = 1;  ///< index of the table's first box in txtFields; 0 where no owner stands before it
};

}  // namespace screens
