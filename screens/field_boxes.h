#pragma once

#include <QString>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/forms/binding.h"
#include "screens/catalogue/screen_definition.h"

class QLabel;
class QWidget;

namespace data {
struct Column;
struct Table;
}  // namespace data

namespace platform {
class CheckBox;
class ComboBox;
class TextControl;
}  // namespace platform

namespace screens {

/// The numbered controls of a record screen, made from its table's definition and its catalogue entry, with the
/// bindings that tie them to the recordset.
class FieldBoxes {
public:
    struct Text {
        platform::TextControl* box = nullptr;
        QLabel* label = nullptr;
        const data::Column* column = nullptr;  ///< nullptr for the owner's shadow
        std::unique_ptr<platform::Binding> binding;  ///< none for a shadow or a box that nothing stores
    };
    struct Check {
        platform::CheckBox* box = nullptr;
        std::unique_ptr<platform::Binding> binding;
    };
    struct Combo {
        platform::ComboBox* box = nullptr;
        ComboColumn column{};
        std::unique_ptr<platform::Binding> binding;
    };

    FieldBoxes(QWidget& form, const ScreenDefinition& definition);
    ~FieldBoxes();

    /// txtFields(index); throws std::out_of_range.
    [[nodiscard]] platform::TextControl& text(int index) const { return *texts_.at(index).box; }
    [[nodiscard]] const std::map<int, Text>& texts() const { return texts_; }
    [[nodiscard]] const std::vector<Check>& checks() const { return checks_; }
    [[nodiscard]] const std::vector<Combo>& combos() const { return combos_; }
    /// Caption of lblLabels(index).
    [[nodiscard]] QString label(int index) const;
    /// The combo whose shadow is the box; nullptr for a box of its own.
    [[nodiscard]] platform::ComboBox* comboOver(int box) const;
    [[nodiscard]] bool isDate(int box) const;

    /// Binds every box and check box but the date boxes; the combos wait for bindCombos.
    void bind(platform::RecordSource* rows);
    void bindDates(platform::RecordSource* rows);
    void bindCombos(platform::RecordSource* rows);
    /// Tab runs through the boxes in index order, then through the check boxes. To be called when they stand in their
    /// frames.
    void orderTabs() const;
    /// Copies each combo's text into its shadow, for the output that walks the text boxes.
    void copyShadows();

private:
    void makeText(QWidget& form, int index, const data::Column& column);
    void makeCheck(QWidget& form, const data::Column& column);
    void makeCombo(QWidget& form, const ComboColumn& column);

    const ScreenDefinition& definition_;
    std::map<int, Text> texts_;
    std::vector<Check> checks_;
    std::vector<Combo> combos_;
};

}  // namespace screens
