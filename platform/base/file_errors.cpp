#include "platform/base/file_errors.h"

#include <cerrno>

#include "platform/base/runtime_error.h"

namespace platform::files {

int errorNumberOf(int systemError, int missing) {
    switch (systemError) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return 61;
        case EACCES:
        case EPERM:
        case EROFS:
        case EBUSY:
        case ETXTBSY:
            return 70;
        case EIO:
            return 57;
        case ENOENT:
        case ENOTDIR:
            return missing;
        default:
            return 75;
    }
}

void throwSystemError(int systemError, int missing) {
    throw RuntimeError(errorNumberOf(systemError, missing));
}

}  // namespace platform::files
