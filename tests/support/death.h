#pragma once

#include <QByteArray>
#include <QString>

namespace support {

/// Writes one line to standard output, flushed; lines of several threads don't mix.
void writeLine(const QByteArray& line);

/// Ends the process as one that the program has died in: the protocol's last line, an error that begins with "died: ",
/// and exit status 70.
[[noreturn]] void die(const QString& reason);

/// From here on an exception that nobody takes ends the process by die().
void watchExceptions();
/// The same for the signals of a crash, those aside that somebody watches already.
void watchSignals();

}  // namespace support
