#pragma once

#include <QString>
#include <functional>

namespace platform {
class Desktop;
}

namespace output {

/// Runs a routine that prints. Without a printer it tells so, and of a job that the queue refuses it tells the queue's
/// words; any other failure is shown under the title.
void attemptPrint(platform::Desktop& desktop, const QString& title, const std::function<void()>& routine);

}  // namespace output
