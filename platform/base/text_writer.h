#pragma once

#include <QString>

namespace platform::files {

/// A single-byte text file that is written line by line. What was written before a failure stays in it.
class TextWriter {
public:
    /// Makes the file, or empties it. Errors: 5 without a name, 76 without the folder, 70 where it is read-only or a
    /// folder.
    explicit TextWriter(const QString& path);
    ~TextWriter();
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;

    /// Writes the text and CR LF. Errors: 5 for a character outside the code page, 61 for a full disk.
    void writeLine(const QString& text);
    /// Puts the file on the disk and closes it; an error of the device may show only here.
    void close();

private:
    int descriptor_ = -1;
};

}  // namespace platform::files
