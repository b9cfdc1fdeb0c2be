#pragma once

#include <QString>

namespace output {

/// How a line ends in every text that is made here, in a file as on a page.
inline const QString lineEnd = QStringLiteral("\r\n");

}  // namespace output
