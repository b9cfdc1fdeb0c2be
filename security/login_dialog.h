#pragma once

#include "platform/forms/form_window.h"

namespace platform {
class TextBox;
}

namespace security {

/// Asks for a password, as often as the user likes. Once answered it only hides, and shows its text again the next
/// time, selected.
class LoginDialog : public platform::FormWindow {
    Q_OBJECT

public:
    LoginDialog(platform::Desktop& desktop, const QString& name, const QString& caption);

    /// The dialog was last left with the right password.
    [[nodiscard]] bool success() const { return success_; }
    void setSuccess(bool success) { success_ = success; }

    void Form_Load() override;

protected:
    [[nodiscard]] virtual QString rightPassword() = 0;
    /// The right password was given.
    virtual void admit() {}

private:
    void cmdOK_Click();
    void cmdCancel_Click();

    platform::TextBox* txtPassword_;
    bool success_ = false;
};

}  // namespace security
