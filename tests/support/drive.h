#pragma once

#include <QString>
#include <functional>

#include "tests/support/program.h"

namespace support {

/// Plays a session by lines from standard input, in front of the program made for the folder that the command line
/// names. The end of the input ends the process at once, as a kill would. What would end the real program ends this one
/// by die(). Returns an exit code.
int drive(int count, char** words, const std::function<MakeProgram(const QString& folder)>& program);

}  // namespace support
