#pragma once

#include <QString>
#include <optional>

#include "session/session.h"

namespace session {

/// Reads the definition file's lines; nullopt when a line matches no key, an empty line among them.
/// Throws RuntimeError when the file can't be read.
[[nodiscard]] std::optional<Definition> readDefinition(const QString& path);

/// Place of the first character whose cipher would break the password's line in the file, from 0; nullopt without one.
[[nodiscard]] std::optional<qsizetype> lineBreakIn(const QString& password);

/// Writes the file anew, whole, without the splash's seconds. A failure leaves the old file as it was. Throws
/// RuntimeError 5 for a password with such a character, and what the file throws.
void writeDefinition(const QString& path, const Definition& definition);

}  // namespace session
