#include "tests/support/headless.h"

#include <QByteArray>

namespace support {

void goHeadless() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.isEmpty() || platform == "offscreen") {
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" KINBOOK_TEST_SCREEN);
    }
}

}  // namespace support
