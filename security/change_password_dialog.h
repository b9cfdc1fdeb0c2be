#pragma once

#include "platform/forms/form_window.h"

namespace platform {
class TextBox;
}

namespace security {

/// Replaces a password: the old one has to be known, the new one is typed twice.
class ChangePasswordDialog : public platform::FormWindow {
    Q_OBJECT

protected:
    /// `confirmation` and `note`: the second and the third paragraph above the boxes.
    ChangePasswordDialog(platform::Desktop& desktop, const QString& name, const QString& caption,
                         const QString& confirmation, const QString& note);

    [[nodiscard]] virtual QString oldPassword() = 0;
    /// Whether it could be read back once it is stored; tells why not.
    [[nodiscard]] virtual bool canStore(const QString& password);
    /// Makes it the password; the dialog closes then.
    virtual void change(const QString& password) = 0;
    /// The two new passwords differ, and the user was told so.
    virtual void pointAtMismatch() {}

    [[nodiscard]] platform::TextBox& txtOld() const { return *txtOld_; }
    [[nodiscard]] platform::TextBox& txtNew() const { return *txtNew_; }

private:
    void cmdOK_Click();
    void refuse(const QString& which);
    [[nodiscard]] bool accepts();

    platform::TextBox* txtOld_;
    platform::TextBox* txtNew_;
    platform::TextBox* txtConfirm_;
};

}  // namespace security
