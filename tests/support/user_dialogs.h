#pragma once

#include "platform/forms/dialogs.h"

namespace support {

/// Shows the real dialogs; the file dialog can be finished with any name, as if it had been typed and, where there is
/// such a file, been agreed to replace it.
class UserDialogs : public platform::Dialogs {
public:
    /// Closes the open file dialog with this name; an empty one chooses nothing.
    void choose(QFileDialog& dialog, const QString& path);

protected:
    QString runFileDialog(QFileDialog& dialog) override;

private:
    std::optional<QString> chosen_;
};

}  // namespace support
