#pragma once

#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "data/table_definition.h"
#include "platform/forms/binding.h"
#include "screens/catalogue/screen_definition.h"

class QLabel;
class QWidget;

namespace platform {
class CheckBox;
class ComboBox;
class TextControl;
}  // namespace platform

namespace screens {

/// What stands in txtFields(0) ahead of a table's own boxes: nothing, the hidden shadow of the owner combo cbFields(0),
/// or a box with the owner's name.
enum class OwnerBox { None, Combo, Name };

/// The numbered controls of a record screen, made from its table's definition and its catalogue entry, with the
/// bindings that tie them to the recordset.
class FieldBoxes {
public:
    struct Text {
        platform::TextControl* box = nullptr;
        QLabel* label = nullptr;
        const data::Column* column = nullptr;        ///< nullptr for the owner's
        std::unique_ptr<platform::Binding> binding;  ///< none for a shadow or a box that nothing stores
    };
    struct Check {
        platform::CheckBox* box = nullptr;
        std::unique_ptr<platform::Binding> binding;
    };
    /// A combo whose text goes into a column by hand on save; its hidden shadow box carries the text to the output. The
    /// owner's combo isn't one: it has no column.
    struct Combo {
        platform::ComboBox* box = nullptr;
        int shadow = 0;  ///< index in txtFields
        const data::Column* column = nullptr;
        std::unique_ptr<platform::Binding> binding;
    };

    FieldBoxes(QWidget& form, const ScreenDefinition& definition, OwnerBox owner);
    ~FieldBoxes();

    /// txtFields(index); throws std::out_of_range.
    [[nodiscard]] platform::TextControl& text(int index) const { return *texts_.at(index).box; }
    /// The box of a column, or its index in txtFields. Throws std::out_of_range for a column without a box.
    [[nodiscard]] platform::TextControl& text(QLatin1StringView column) const { return text(indexOf(column)); }
    [[nodiscard]] int indexOf(QLatin1StringView column) const;
    [[nodiscard]] const std::map<int, Text>& texts() const { return texts_; }
    [[nodiscard]] const std::vector<Check>& checks() const { return checks_; }
    [[nodiscard]] const std::vector<Combo>& combos() const { return combos_; }
    /// The owner combo; nullptr on a screen without one.
    [[nodiscard]] platform::ComboBox* owner() const { return owner_; }
    /// Caption of lblLabels(index).
    [[nodiscard]] QString label(int index) const;
    /// The combo whose shadow is the box; nullptr for a box of its own.
    [[nodiscard]] platform::ComboBox* comboOver(int box) const;
    /// What the box must hold when the focus leaves it, besides nothing at all: a date or a number; none for any text.
    [[nodiscard]] std::optional<data::FieldKind> requiredKind(int box) const;

    /// Binds every box and check box but the date boxes; the combos wait for bindCombos.
    void bind(platform::RecordSource* rows);
    void bindDates(platform::RecordSource* rows);
    void bindCombos(platform::RecordSource* rows);
    /// Sets each combo's column to its text. On a row that is there already, an empty combo that never showed the row's
    /// value (its load failed) writes nothing.
    void writeCombos(platform::RecordSource& rows, bool isNew) const;
    /// Sets each date box's column to its text, or to a null if it is empty, and leaves the box bound. A text that is
    /// no date writes nothing.
    void writeDates(platform::RecordSource& rows) const;
    /// Fills the status combo with its own items and every other combo with the names of the states.
    void fillCombos(const QStringList& states);
    /// Tab runs through the controls in this order. To be called when they stand in their frames.
    static void orderTabs(const std::vector<QWidget*>& order);
    /// Clears the check boxes that no column stores: another row is on screen.
    void clearUnstored();
    /// Copies each combo's text into its shadow, for the output that walks the text boxes.
    void copyShadows();
    /// Keeps the texts of all boxes and combos without drawing them, and draws what they have become.
    void holdDisplay();
    void showHeld();

private:
    Text& addText(QWidget& form, int index, platform::TextControl* box, const QString& label);
    void makeText(QWidget& form, int index, const data::Column& column);
    void makeOwner(QWidget& form, OwnerBox owner);
    void makeCheck(QWidget& form, const data::Column& column);
    void makeCombo(QWidget& form, int shadow);
    /// The combo stands in the place of a box, which goes on holding the text and is never met, on screen, by the
    /// keyboard or by a screen reader.
    static void putOver(const Text& shadow, platform::ComboBox& combo);

    const ScreenDefinition& definition_;
    std::vector<data::Column> fields_;
    platform::ComboBox* owner_ = nullptr;
    std::map<int, Text> texts_;
    std::vector<Check> checks_;
    std::vector<Combo> combos_;
};

}  // namespace screens
