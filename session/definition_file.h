#pragma once

#include <QString>
#include <optional>

#include "session/session.h"

namespace session {

/// Reads the definition file's lines; nullopt when a line matches no key, an empty line among them.
/// Throws RuntimeError when the file can't be read.
[[nodiscard]] std::optional<Definition> readDefinition(const QString& path);

}  // namespace session
