#pragma once

#include <QKeySequence>
#include <QPushButton>
#include <functional>

#include "platform/forms/control.h"

namespace platform {

/// A push button. Its accelerator gives it the focus and clicks at once, like the mouse; Enter clicks the one that has
/// the focus.
class CommandButton : public QPushButton, public Control {
    Q_OBJECT

public:
    explicit CommandButton(QWidget* parent = nullptr);

    [[nodiscard]] QWidget& widget() override { return *this; }
    void onClick(std::function<void()> handler) { handler_ = std::move(handler); }
    /// Clicks by code, also when the button is hidden.
    void press();
    /// A key that clicks it while it shows, besides its accelerator; the focus stays where it is.
    void addKey(const QKeySequence& key);
    /// True if it shows and the key is its accelerator or the one besides.
    [[nodiscard]] bool answersTo(const QKeySequence& key) const;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::function<void()> handler_;
    QKeySequence key_;
};

}  // namespace platform
