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

    /// The dialog was left by OK, and all its checks were passed.
    [[nodiscard]] bool success() const { return success_; }
    [[nodiscard]] const EditForm& form() const { return form_; }

    /// Text of an input by its name.
    [[nodiscard]] QString text(const QString& field) const;
    void setText(const QString& field, const QString& text);
    void clear();
    /// Gets the dialog ready to be shown for an edit.
    void initScreen();

protected:
    /// Tells what is wrong with what was typed; false keeps the dialog open.
    [[nodiscard]] virtual bool accepts() { return true; }
    /// Selects the whole of an input and puts the focus there.
    void pointAt(const QString& field);
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
