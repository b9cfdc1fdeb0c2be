#pragma once

#include "platform/forms/bindable.h"
#include "platform/forms/control.h"

namespace platform {

/// A box of text, of one line or of many. Positions and lengths are in characters; a line end counts two.
///
/// Of a text beyond what can be laid out in no time the box shows the beginning and keeps the rest behind it, also
/// while the beginning is changed. Replacing or deleting all that is shown replaces the rest with it.
class TextControl : public Control, public Bindable {
public:
    [[nodiscard]] virtual QString text() const = 0;
    /// Replaces the text, cut to the box's length without an error; the caret goes to the start.
    virtual void setText(const QString& text) = 0;
    [[nodiscard]] virtual bool isLocked() const = 0;
    /// A locked box takes no typing; the caret, selection and copying work, and code can set it.
    virtual void setLocked(bool locked) = 0;
    [[nodiscard]] virtual int maxLength() const = 0;  ///< 0: no limit
    virtual void setMaxLength(int characters) = 0;

    [[nodiscard]] virtual int selStart() const = 0;
    [[nodiscard]] virtual int selLength() const = 0;
    virtual void select(int start, int length) = 0;
    [[nodiscard]] virtual QString selText() const = 0;
    /// Replaces the selection, also in a locked box.
    virtual void setSelText(const QString& text) = 0;

    /// From here on the text is kept without being drawn, for a walk through many records that nobody watches.
    virtual void holdDisplay() = 0;
    /// Draws what the text has become.
    virtual void showHeld() = 0;

    void selectAll() { select(0, static_cast<int>(text().size())); }
    void showValue(const QVariant& value, ColumnKind kind, const QString& format) override;
    [[nodiscard]] QVariant content() const override { return text(); }

protected:
    /// What of the text has room in the box; a character of two units stays whole or goes.
    [[nodiscard]] QString fitting(const QString& text) const;
};

}  // namespace platform
