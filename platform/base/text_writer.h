#pragma once

#include <QString>

#include "platform/base/file_replacement.h"

namespace platform::files {

/// A text file in UTF-8, without a mark at its front, that is written line by line. It takes its name when it is whole:
/// without close() nothing is left of it, and a file of that name stays as it was.
class TextWriter {
public:
    /// Errors: 5 without a name, 76 without the folder, 70 where the file is read-only or a folder.
    explicit TextWriter(const QString& path);

    /// Writes the text and CR LF. Error 61 for a full disk.
    void writeLine(const QString& text);
    /// Puts the file on the disk and in its place; an error of the device may show only here.
    void close();

private:
    FileReplacement file_;
};

}  // namespace platform::files
