#include "output/print_failure.h"

#include "platform/base/runtime_error.h"
#include "platform/forms/desktop.h"

using namespace Qt::StringLiterals;

namespace output {

void attemptPrint(platform::Desktop& desktop, const QString& title, const std::function<void()>& routine) {
    try {
        routine();
    } catch (const platform::RuntimeError& error) {
        if (error.error() != platform::Error::NoPrinter) {
            desktop.notice(error.report(), title, platform::Icon::Critical);
            return;
        }
        const bool refused = error.description() != platform::RuntimeError(platform::Error::NoPrinter).description();
        desktop.notice(refused
                           ? error.description()
                           : u"No printer is configured for this computer so you will not be able to print anything."_s,
                       u"No Printer"_s);
    }
}

}  // namespace output
