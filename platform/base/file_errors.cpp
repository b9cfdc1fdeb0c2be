#include "platform/base/file_errors.h"

#include <cerrno>

namespace platform::files {

Error errorOf(int systemError, Error missing) {
    switch (systemError) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return Error::DiskFull;
        case EACCES:
        case EPERM:
        case EROFS:
        case EBUSY:
        case ETXTBSY:
            return Error::PermissionDenied;
        case EIO:
            return Error::DeviceFailure;
        case ENOENT:
        case ENOTDIR:
            return missing;
        default:
            return Error::PathAccess;
    }
}

void throwSystemError(int systemError, Error missing) {
    throw RuntimeError(errorOf(systemError, missing));
}

}  // namespace platform::files
