#pragma once

#include <QString>
#include <vector>

#include "lists/edit_field.h"
#include "platform/forms/form_window.h"

class QFormLayout;

namespace platform {
class ComboBox;
class TextControl;
}  // namespace platform

namespace lists {

/// The small modal dialog in which a row of a list is entered. Whoever shows it reads its boxes while it is hidden, and
/// then unloads it.
class EditDialog : public platform::FormWindow {
    Q_OBJECT

public:
    /// `form` is kept; it has to live longer than the dialog.
    EditDialog(platform::Desktop& desktop, const EditForm& form);

    /// Shows the dialog until it is left; true for OK, with all checks passed. It can be run again, with its texts.
    [[nodiscard]] bool run();
    [[nodiscard]] const EditForm& form() const { return form_; }

    /// Text of an input by its name.
    [[nodiscard]] QString text(const QString& field) const;
    /// The same as the table keeps it.
    [[nodiscard]] QString storedText(const QString& field) const;
    void setText(const QString& field, const QString& text);
    void clear();
    /// Gets the dialog ready to be shown for an edit.
    void initScreen();
    /// Selects the whole of an input and puts the focus there.
    void pointAt(const QString& field);

protected:
    /// Tells what is wrong with what was typed; false keeps the dialog open.
    [[nodiscard]] virtual bool accepts() { return true; }
    [[nodiscard]] platform::ComboBox& combo(const QString& field) const;

private:
    struct Input {
        const EditField& field;
        platform::TextControl* box;
        platform::ComboBox* combo;
    };

    void addInput(QFormLayout& rows, const EditField& field);
    [[nodiscard]] const Input& input(const QString& field) const;
    void cmdOK_Click();
    void cmdCancel_Click();

    const EditForm& form_;
    std::vector<Input> inputs_;
    bool success_ = false;
};

}  // namespace lists
