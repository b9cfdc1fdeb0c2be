#include "platform/base/unexpected_error.h"

#include <new>
#include <system_error>

#include "platform/base/file_errors.h"

using namespace Qt::StringLiterals;

namespace platform {

RuntimeError asRuntimeError(const std::exception& failure) {
    if (const auto* known = dynamic_cast<const RuntimeError*>(&failure)) return *known;
    if (dynamic_cast<const std::bad_alloc*>(&failure)) return RuntimeError(Error::OutOfMemory);
    const auto* ofSystem = dynamic_cast<const std::system_error*>(&failure);
    if (ofSystem && ofSystem->code().default_error_condition().category() == std::generic_category())
        return RuntimeError(files::errorOf(ofSystem->code().default_error_condition().value(), Error::PathNotFound));
    return {Error::Internal, u"Internal error (%1)"_s.arg(QString::fromUtf8(failure.what()))};
}

bool passOver(const std::function<void()>& step) noexcept {
    try {
        step();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace platform
