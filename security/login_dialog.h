#pragma once

#include "platform/forms/form_window.h"

namespace platform {
class TextBox;
}

namespace security {

/// Asks for a password, as often as the user likes. Once answered it only hides, and shows its text again the next
/// time, selected, unless that was taken away.
class LoginDialog : public platform::FormWindow {
    Q_OBJECT

public:
    LoginDialog(platform::Desktop& desktop, const QString& name, const QString& caption);

    void Form_Load() override;

protected:
    [[nodiscard]] virtual QString rightPassword() = 0;
    /// The right password was given.
    virtual void admit() = 0;
    void clear();

private:
    void cmdOK_Click();
    void cmdCancel_Click();

    platform::TextBox* txtPassword_;
};

}  // namespace security
