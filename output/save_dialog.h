#pragma once

#include <QString>

#include "platform/forms/dialogs.h"

namespace platform {
class Desktop;
}

namespace output {

/// Where a file is to be saved, beginning in a folder.
[[nodiscard]] platform::FileRequest saveRequest(const QString& folder);
/// The same, where text files alone are offered and their ending is added.
[[nodiscard]] platform::FileRequest textFileRequest(const QString& folder);

/// The same for a PDF file.
[[nodiscard]] platform::FileRequest pdfFileRequest(const QString& folder);

/// The box for a file dialog that was left without a name.
void tellNoFileName(platform::Desktop& desktop);

}  // namespace output
