#pragma once

#include <QString>

#include "tests/support/program.h"

namespace support {

/// Kinbook in the given application folder.
[[nodiscard]] MakeProgram kinbookProgram(const QString& folder);

/// The same without its waits: the splash window goes as soon as it has come.
[[nodiscard]] MakeProgram hurriedKinbook(const QString& folder);

}  // namespace support
