#pragma once

#include <QCheckBox>
#include <functional>

#include "platform/forms/bindable.h"
#include "platform/forms/control.h"

namespace platform {

/// A check box; its value is 0, 1, or 2 for grey, which only a null can show.
class CheckBox : public QCheckBox, public Control, public Bindable {
    Q_OBJECT

public:
    explicit CheckBox(QWidget* parent = nullptr);

    [[nodiscard]] QWidget& widget() override { return *this; }
    [[nodiscard]] int value() const;
    void setValue(int value);
    /// Every change of the value is a click, whether the user, code or the binding made it.
    void onClick(std::function<void()> handler) { handler_ = std::move(handler); }

    void showValue(const QVariant& value, ColumnKind kind, const QString& format) override;
    [[nodiscard]] QVariant content() const override;

protected:
    void initStyleOption(QStyleOptionButton* option) const override;

private:
    std::function<void()> handler_;
};

}  // namespace platform
