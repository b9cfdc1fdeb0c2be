#pragma once

namespace support {

/// Has the windows drawn in memory, on a screen of common size, unless QT_QPA_PLATFORM names another platform. To be
/// called before the application object is made.
void goHeadless();

}  // namespace support
