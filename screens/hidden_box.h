#pragma once

#include "platform/forms/binding.h"

class QWidget;

namespace platform {
class TextBox;
}

namespace screens {

/// A bound text box that nobody sees: it holds a key of the row, and setting its text writes the key with the row.
class HiddenBox {
public:
    HiddenBox(QWidget& form, const QString& name, const QString& column);

    [[nodiscard]] QString text() const;
    void setText(const QString& text);
    void setNumber(int number) { setText(QString::number(number)); }
    /// The text as a whole number. Throws RuntimeError 13 for any other text, an empty one too, and 6 beyond 32 bits.
    [[nodiscard]] int number() const;
    [[nodiscard]] bool isNumeric() const;
    void bind(platform::RecordSource* rows) { binding_.setSource(rows); }

private:
    platform::TextBox* box_;
    platform::Binding binding_;
};

}  // namespace screens
