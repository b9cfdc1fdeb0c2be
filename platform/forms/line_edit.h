#pragma once

#include <QLineEdit>

namespace platform {

/// A line of text that shows the beginning of what it has no room for, with an ellipsis, while nobody types in it.
/// Locked, it has the window's colour.
class LineEdit : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    /// The whole text, if there is no room for all of it; else nothing.
    [[nodiscard]] QString cutText() const;
    /// Selects the whole text with the caret at its beginning, so that the beginning stays in sight.
    void selectAllFromStart() { setSelection(static_cast<int>(text().size()), -static_cast<int>(text().size())); }
    /// Width of the whole box, when its text has room for so many pixels.
    [[nodiscard]] int widthFor(int textPixels) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void initStyleOption(QStyleOptionFrame* option) const override;

private:
    [[nodiscard]] QRect textRect() const;
};

/// Shows a tooltip at a help event; an empty one hides what is shown.
void showHint(const QEvent& helpEvent, QWidget& widget, const QString& hint);

}  // namespace platform
