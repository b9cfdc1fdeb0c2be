#include "platform/base/unexpected_error.h"

#include <new>
#include <system_error>

#include "platform/base/file_errors.h"

using namespace Qt::StringLiterals;

namespace platform {

RuntimeError asRuntimeError(const std::exception& failure) {
    constexpr int outOfMemory = 7;
    constexpr int pathNotFound = 76;
    constexpr int internalError = 51;
    if (const auto* known = dynamic_cast<const RuntimeError*>(&failure)) return *known;
    if (dynamic_cast<const std::bad_alloc*>(&failure)) return RuntimeError(outOfMemory);
    const auto* ofSystem = dynamic_cast<const std::system_error*>(&failure);
    if (ofSystem && ofSystem->code().default_error_condition().category() == std::generic_category())
        return RuntimeError(files::errorNumberOf(ofSystem->code().default_error_condition().value(), pathNotFound));
    return {internalError, u"Internal error (%1)"_s.arg(QString::fromUtf8(failure.what()))};
}

}  // namespace platform
