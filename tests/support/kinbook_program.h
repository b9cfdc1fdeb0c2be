#pragma once

#include <QString>

#include "tests/support/program.h"

namespace support {

/// Kinbook in the given application folder.
[[nodiscard]] MakeProgram kinbookProgram(const QString& folder);

}  // namespace support
