#pragma once

#include <optional>

#include "platform/forms/line_edit.h"
#include "platform/forms/text_control.h"

namespace platform {

/// A text box of one line.
class TextBox : public LineEdit, public TextControl {
    Q_OBJECT

public:
    explicit TextBox(QWidget* parent = nullptr);

    [[nodiscard]] QWidget& widget() override { return *this; }
    [[nodiscard]] int widthFor(int textPixels) override { return LineEdit::widthFor(textPixels); }
    [[nodiscard]] QString hint() override { return toolTip().isEmpty() ? cutText() : toolTip(); }
    [[nodiscard]] QString text() const override { return held_ ? *held_ : QLineEdit::text() + rest_; }
    void setText(const QString& text) override;
    [[nodiscard]] bool isLocked() const override { return isReadOnly(); }
    void setLocked(bool locked) override { setReadOnly(locked); }
    [[nodiscard]] int maxLength() const override { return limit_; }
    void setMaxLength(int characters) override;
    [[nodiscard]] int selStart() const override;
    [[nodiscard]] int selLength() const override { return selectionLength(); }
    void select(int start, int length) override;
    [[nodiscard]] QString selText() const override;
    void setSelText(const QString& text) override;
    void holdDisplay() override { held_ = text(); }
    void showHeld() override;
    using TextControl::selectAll;

protected:
    bool event(QEvent* event) override;

private:
    void dropHalfCharacter();

    int limit_ = 0;
    std::optional<QString> held_;
    QString rest_;
    bool allSelected_ = false;
};

}  // namespace platform
