#pragma once

#include "platform/forms/dialogs.h"

namespace support {

/// Shows the real dialogs; the file dialog can be finished with any name, as if it had been typed.
class UserDialogs : public platform::Dialogs {
public:
    /// Closes the open file dialog with this name; an empty one chooses nothing.
    void choose(QFileDialog& dialog, const QString& path);

protected:
    QString runFileDialog(QFileDialog& dialog) override;

private:
    QString chosen_;
};

}  // namespace support
