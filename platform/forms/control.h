#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace platform {

/// What a form knows of each of its controls: its name, its widget, and the check that runs before it loses the focus.
///
/// The name of a control in an array is the array's name with the index, "txtFields(3)"; it is the widget's objectName.
class Control {
public:
    /// Runs when the focus is about to leave; returns false to hold it.
    using Validate = std::function<bool()>;

    Control() = default;
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    [[nodiscard]] virtual QWidget& widget() = 0;
    /// Width of the whole control in pixels, when its text has room for so many.
    [[nodiscard]] virtual int widthFor(int textPixels);
    /// What the user reads when the pointer rests on it: the told hint, else a text that the control has no room for.
    [[nodiscard]] virtual QString hint();
    void setName(const QString& name);
    /// What a screen reader calls it: the caption of its label.
    virtual void setSpokenName(const QString& name);
    [[nodiscard]] QString name();
    void setValidate(Validate validate) { validate_ = std::move(validate); }
    /// Runs the check.
    [[nodiscard]] bool allowsLeaving() const { return !validate_ || validate_(); }

    /// The control that a widget belongs to: itself or the nearest one around it; nullptr for none.
    [[nodiscard]] static Control* of(QWidget* widget);

private:
    Validate validate_;
};

/// Tab stops at the widget when it is in sight.
[[nodiscard]] bool takesTab(const QWidget& widget);

/// "txtFields" and 3 give "txtFields(3)".
[[nodiscard]] QString indexedName(const QString& array, int index);

}  // namespace platform
