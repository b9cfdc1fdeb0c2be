#pragma once

#include <QString>
#include <functional>

namespace platform {
class Desktop;
}

namespace output {

/// Runs a routine that prints. Without a printer it tells so; any other failure is shown under the title.
void attemptPrint(platform::Desktop& desktop, const QString& title, const std::function<void()>& routine);

}  // namespace output
