#pragma once

#include <QPushButton>
#include <functional>

#include "platform/forms/control.h"

namespace platform {

/// A push button. Its accelerator gives it the focus and clicks at once, like the mouse.
class CommandButton : public QPushButton, public Control {
    Q_OBJECT

public:
    explicit CommandButton(QWidget* parent = nullptr);

    [[nodiscard]] QWidget& widget() override { return *this; }
    void onClick(std::function<void()> handler) { handler_ = std::move(handler); }
    /// Clicks by code, also when the button is hidden.
    void press();

protected:
    bool event(QEvent* event) override;

private:
    std::function<void()> handler_;
};

}  // namespace platform
