#pragma once

#include <QIcon>

namespace platform {

/// A picture of the installed icon theme, in its dark variant on a dark palette.
[[nodiscard]] QIcon themeIcon(const QString& name);

}  // namespace platform
